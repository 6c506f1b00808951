#include "registration/eequipes.h"

#include "fenetres/echap_tenue.h"
#include "imports/lecteur_lignes.h"
#include "ui_eequipes.h"

#include <QFile>
#include <QFileInfo>

// Teams from a file, each through the form as if it were typed.

namespace {

constexpr QChar separateur = u'|';
constexpr int membresLus = 3;
const QString nomInitial = u"*.dat"_qs;

/// How many teams there are, with a participle that goes with them.
QString compteEquipes(int nombre, const QString &participe)
{
    if (nombre == 0)
        return u"aucune équipe "_qs + participe;
    return u"%1 équipe%3 %2%3"_qs.arg(nombre).arg(participe, nombre > 1 ? u"s"_qs : QString());
}

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
    if (!fichier.open(QIODevice::ReadOnly)) {
        MsgBox(u"Le fichier %1 ne peut pas être lu : %2."_qs.arg(QFileInfo(choisi).fileName(), fichier.errorString()),
               vbCritical);
        return;
    }
    importeFichier(fichier);
}

void Eequipes::importeFichier(QFile &fichier)
{
    recu::LecteurLignes lignes(fichier);
    int entrees = 0;
    const auto dit = [&](const QString &suite) {
        const qint64 part = 100 * lignes.octets() / std::max<qint64>(fichier.size(), 1);
        m_ui->Avancement->setText(u"Importation, ligne %1 (%2 %) : %3. %4"_qs.arg(lignes.numero())
                                      .arg(part)
                                      .arg(compteEquipes(entrees, u"enregistrée"_qs), suite));
    };
    const EchapTenue echap([&] { dit(u"Elle s'arrête après cette question."_qs); });
    try {
        while (!echap.demandee()) {
            const std::optional<QString> ligne = lignes.suivante();
            if (!ligne)
                break;
            dit(u"Échap tenue une seconde l'arrête."_qs);
            entrees += importeEquipe(*ligne, echap);
        }
        dit(echap.demandee() ? u"Arrêtée."_qs : u"Terminée."_qs);
    } catch (const recu::ErreurLecture &erreur) {
        dit(u"Arrêtée."_qs);
        MsgBox(u"L'importation de %1 s'arrête à la ligne %2. %3 Avant elle : %4."_qs.arg(QFileInfo(fichier).fileName())
                   .arg(lignes.numero())
                   .arg(erreur.phrase(), compteEquipes(entrees, u"entrée"_qs)),
               vbCritical);
    }
}

/// Puts the team of one line through the form; whether it was stored. A stop that was asked for counts behind the box
/// on screen, so nothing more is asked then.
bool Eequipes::importeEquipe(const QString &ligne, const EchapTenue &echap)
{
    ChampsDeLigne champs(ligne);
    m_ui->Société->setText(champs.prend(u"le club"_qs).trimmed());
    for (int i = 0; i < membresLus && !m_NomJ[i]->isHidden(); ++i) {
        const QString joueur = u" du joueur %1"_qs.arg(i + 1);
        m_NomJ[i]->setText(champs.prend(u"le nom"_qs + joueur).trimmed());
        m_PrénomJ[i]->setText(champs.prend(u"le prénom"_qs + joueur));
        m_LicenceJ[i]->setText(champs.prend(u"la licence"_qs + joueur).trimmed());
        LicenceJ_KeyDown(i, Touche::Entree, 0);
        if (echap.demandee())
            return false;
    }
    Société_LostFocus();
    if (echap.demandee())
        return false;
    return MsgBox(mes(101), vbYesNo) == ReponseBoite::Oui && enregistre();
}
