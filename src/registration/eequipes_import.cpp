#include "registration/eequipes.h"

#include "maintenance/lecteur_lignes.h"
#include "ui_eequipes.h"

#include <QFile>
#include <QFileInfo>

// Teams from a file, each through the form as if it were typed.

namespace {

constexpr QChar separateur = u'|';
constexpr int membresLus = 3;
const QString nomInitial = u"*.dat"_qs;

/// Takes the fields of one line one by one.
class ChampsDeLigne
{
public:
    explicit ChampsDeLigne(const QString &ligne)
        : m_reste(ligne.endsWith(separateur) ? ligne : ligne + separateur)
    {
    }

    /// Text up to the next separator. \p quoi names it when the line has come to its end: the import stops there.
    QString prend(const QString &quoi)
    {
        const qsizetype fin = m_reste.indexOf(separateur);
        if (fin < 0)
            throw recu::ErreurLecture(u"La ligne est incomplète : il y manque %1."_qs.arg(quoi));
        QString champ = m_reste.left(fin);
        m_reste.remove(0, fin + 1);
        return champ;
    }

private:
    QString m_reste;
};

} // namespace

void Eequipes::cImport_Click()
{
    const QString choisi = boites().ShowOpen(
        {.DialogTitle = mes(22) + u" - "_qs + mes(2), .DefaultExt = u"dat"_qs, .FileName = nomInitial});
    if (choisi == nomInitial || choisi.isEmpty() || !QFileInfo(choisi).isFile())
        return;
    // Yes and No are alike: every team is confirmed by itself.
    if (MsgBox(mes(100), vbYesNoCancel) == ReponseBoite::Annuler)
        return;
    QFile fichier(choisi);
    const QString nom = QFileInfo(choisi).fileName();
    if (!fichier.open(QIODevice::ReadOnly)) {
        MsgBox(u"Le fichier %1 ne peut pas être lu : %2."_qs.arg(nom, fichier.errorString()), vbCritical);
        return;
    }
    recu::LecteurLignes lignes(fichier);
    try {
        while (const std::optional<QString> ligne = lignes.suivante())
            importeEquipe(*ligne);
    } catch (const recu::ErreurLecture &erreur) {
        MsgBox(u"L'importation de %1 s'arrête à la ligne %2. "_qs.arg(nom).arg(lignes.numero()) + erreur.phrase(),
               vbCritical);
    }
}

void Eequipes::importeEquipe(const QString &ligne)
{
    ChampsDeLigne champs(ligne);
    m_ui->Société->setText(champs.prend(u"le club"_qs).trimmed());
    for (int i = 0; i < membresLus && !m_NomJ[i]->isHidden(); ++i) {
        const QString joueur = u" du joueur %1"_qs.arg(i + 1);
        m_NomJ[i]->setText(champs.prend(u"le nom"_qs + joueur).trimmed());
        m_PrénomJ[i]->setText(champs.prend(u"le prénom"_qs + joueur));
        m_LicenceJ[i]->setText(champs.prend(u"la licence"_qs + joueur).trimmed());
        LicenceJ_KeyDown(i, Touche::Entree, 0);
    }
    Société_LostFocus();
    if (MsgBox(mes(101), vbYesNo) == ReponseBoite::Oui)
        Okc_Click();
}
