#include "results/vue_resultats.h"

#include "fenetres/formulaires.h"
#include "grille/flexgrid.h"
#include "noms/formes.h"

#include <QHideEvent>

void VueResultats::placeForme()
{
    const Formulaire *saisie = formulaires().forme(formes::EResultats);
    if (saisie == nullptr || m_placee)
        return;
    m_placee = true;
    place([this] {
        if (const Formulaire *presente = formulaires().forme(formes::EResultats))
            placePres(*presente);
    });
}

int VueResultats::gaucheLibre(const Formulaire &saisie, int voulue) const
{
    if (voulue >= 0 || Width() <= saisie.Left())
        return std::max(voulue, 0);
    return std::max(std::min(saisie.Left() + saisie.Width(), Ecran::Width() - Width()), 0);
}

void VueResultats::rendClavier() const
{
    if (Formulaire *saisie = formulaires().forme(formes::EResultats); saisie != nullptr && saisie->isVisible())
        saisie->activateWindow();
}

void VueResultats::surPression(FlexGrid *grille,
                               const std::function<void(int bouton, int ligne, int colonne)> &traitement)
{
    connect(grille, &FlexGrid::mousePresse, this,
            [this, traitement](Qt::MouseButton bouton, Qt::KeyboardModifiers, int ligne, int colonne) {
                execute([&] { traitement(CodeBouton(bouton), ligne, colonne); });
                rendClavier();
            });
}

void VueResultats::hideEvent(QHideEvent *evenement)
{
    // A minimised window is still there.
    if (!evenement->spontaneous()) {
        m_placee = false;
        quitteEcran();
    }
    Formulaire::hideEvent(evenement);
}
