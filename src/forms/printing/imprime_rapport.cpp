#include "printing/imprime_rapport.h"

#include "printing/feuille.h"

#include <array>

namespace {

// Twips
constexpr std::array colonnes{300, 900, 1600, 4100, 4800, 7300}; ///< Level, team, club, team, club, remark.
constexpr int gaucheTitre = 2800;
constexpr int pasLigne = 60;
constexpr int hauteurLigne = 320;
// Points
constexpr double tailleTexte = 11;

constexpr MiseEnPage mise{.bordFin = MiseEnPage::Papier, .pied = 800};

} // namespace

void ImprimeRapport(const Contexte &contexte, const moteur::RapportTour &rapport, const QHash<int, QString> &clubs,
                    const QStringList &entetes, const QStringList &remarques, const QString &bilan,
                    const QString &titre)
{
    const std::unique_ptr<Feuille> feuille = Feuille::ouvre(contexte, mise);
    if (feuille == nullptr)
        return;
    Imprimante &papier = feuille->papier();
    feuille->setEntete([&] {
        papier.setOrientation(Orientation::Portrait);
        feuille->ecritConcours(18, papier.ScaleWidth() - 4500);
        feuille->ecritTitre(24, gaucheTitre, titre);
        papier.FontSize = tailleTexte;
        papier.CurrentY += hauteurLigne;
        feuille->ecritLigne(colonnes, entetes);
        papier.Line(colonnes.front(), papier.CurrentY, papier.ScaleWidth() - colonnes.front(), papier.CurrentY);
        papier.FontBold = false;
        papier.CurrentY += pasLigne;
    });
    feuille->commence();
    for (std::size_t i = 0; i < rapport.paires.size(); ++i) {
        const moteur::PaireRapportee &paire = rapport.paires[i];
        feuille->saute(pasLigne + hauteurLigne);
        papier.CurrentY += pasLigne;
        feuille->ecritLigne(colonnes,
                            {QString::number(paire.niveau), QString::number(paire.equipe1), clubs.value(paire.equipe1),
                             paire.exempt() ? QString() : QString::number(paire.equipe2), clubs.value(paire.equipe2),
                             remarques.value(qsizetype(i))});
    }
    papier.CurrentY += hauteurLigne;
    for (const QString &ligne : bilan.split(u'\n')) {
        feuille->saute(hauteurLigne);
        feuille->ecrit(colonnes.front(), ligne, papier.ScaleWidth());
        papier.Print({});
    }
    feuille->termine();
}
