#include "competitions/duplication.h"
#include "competitions/econcours.h"

#include "donnees/concours.h"
#include "fenetres/copie_prealable.h"
#include "fenetres/sablier.h"
#include "partage/routines.h"
#include "ui_econcours.h"

// What touches a competition as a whole: its copy and its removal.

void Econcours::Dupliquer_Click()
{
    DupliqueConcours(contexte(), m_ui->référence->currentText());
}

void Econcours::Supprimer_Click()
{
    const std::optional<donnees::Concours> concours =
        donnees::TrouveConcours(partage().BaseDonnees, m_ui->référence->currentText());
    if (!concours) {
        videSaisie();
        SetFocus(m_ui->Text2);
        return;
    }
    if (MsgBox(mes(54) + u' ' + mes(55) + u"\r\n"_qs + mes(96), vbYesNo) != ReponseBoite::Oui)
        return;
    {
        const Sablier sablier;
        if (!GardeUneCopie(contexte(), RaisonCopie::Suppression))
            return;
        donnees::SupprimeConcours(partage().BaseDonnees, *concours);
    }
    videSaisie();
    relitReferences();
    SetFocus(m_ui->Text2);
}

/// The list follows the removal; the number proposed stays, even where its competition is the one that went.
void Econcours::relitReferences()
{
    const std::vector<donnees::Concours> restants = donnees::ListeConcours(partage().BaseDonnees);
    m_ui->référence->clear();
    if (restants.empty()) {
        majrefconcours();
        return;
    }
    for (const donnees::Concours &concours : restants)
        m_ui->référence->addItem(ZeroPad(concours.numero, largeurReference));
    poseTexte(m_ui->référence, ZeroPad(m_refConcours, largeurReference));
}
