#include "results/affichage_attendus.h"

#include "donnees/rencontres.h"
#include "engine/rangs.h"
#include "engine/routines_tirage.h"
#include "fenetres/formulaires.h"
#include "fenetres/garde_defilement.h"
#include "noms/formes.h"
#include "partage/routines.h"
#include "results/grille_resultats.h"
#include "results/groupes.h"
#include "results/manqres.h"

using moteur::LigneClassement;

namespace {

constexpr int largeurTitre = 10; // characters of a team's heading
constexpr int largeurTour = 660; // twips
const QString tiret = u"-"_qs;

void afficheRencontres(Partage &partage, FlexGrid &grille, qint64 concours)
{
    const GardeDefilement defilement(grille);
    grille.setRows(1);
    grille.setCols(5);
    grille.setFormatString(u"<Tour|"_qs + partage.mes(24).leftJustified(largeurTitre) + u'|'
                           + partage.mes(25).leftJustified(largeurTitre) + u"|    |    "_qs);
    grille.setColWidth(0, largeurTour);
    for (const donnees::Rencontre &rencontre : donnees::RencontresAttendues(partage.BaseDonnees, concours)) {
        grille.AddItem(u"%1\t%2\t%3"_qs.arg(rencontre.tour).arg(rencontre.equipe1).arg(rencontre.equipe2));
        manqres::marqueLancee(grille, grille.Rows() - 1, rencontre.lancee);
    }
}

/// Difference with its sign; the points stand as a dash as long as the team has none.
QStringList textesPoints(const LigneClassement &ligne)
{
    if (!ligne.pp || !ligne.pc)
        return {tiret, tiret, tiret};
    const int ga = ligne.ga.value_or(0);
    const QString signe = ga > 0 ? u"+"_qs : QString();
    return {QString::number(*ligne.pp), QString::number(*ligne.pc), signe + QString::number(ga)};
}

void ajouteLigne(FlexGrid &grille, const QStringList &textes, const LigneClassement &ligne)
{
    grille.AddItem((textes + textesPoints(ligne)).join(u'\t'));
    const int ga = ligne.ga.value_or(0);
    if (ga != 0)
        grille.setCellBackColor(grille.Rows() - 1, grille.Cols() - 1, ga > 0 ? grille::vert : grille::rouge);
}

QString textePosition(const std::optional<int> &position, const QString &sansPosition)
{
    return position ? QString::number(*position) : sansPosition;
}

void afficheGeneral(FlexGrid &grille, const std::vector<LigneClassement> &lignes)
{
    const GardeDefilement defilement(grille);
    grille.setRows(1);
    grille.setCols(7);
    grille.setFormatString(u">Clt|Equ.| G| P| Pp | Pc |<  Ga "_qs);
    grille::serreClassement(grille, 2);
    for (const auto &[rang, position] : moteur::classementGeneral(lignes)) {
        const LigneClassement &ligne = lignes[rang];
        ajouteLigne(grille,
                    {textePosition(position, tiret), QString::number(ligne.equipe), QString::number(ligne.gagnées),
                     QString::number(ligne.perdues)},
                    ligne);
    }
}

/// One tab a number of matches won, from none to what the first team has.
void afficheGroupes(const Partage &partage, Groupes &groupes, const std::vector<LigneClassement> &lignes)
{
    const int onglets = lignes.empty() ? 0 : lignes.front().pt + 1;
    groupes.fixeOnglets(onglets);
    std::vector<std::unique_ptr<GardeDefilement>> defilements;
    for (int onglet = onglets; onglet >= 1; --onglet) {
        groupes.legende(onglet, LibellePluriel(partage, onglet - 1, u"victoire"_qs));
        defilements.push_back(std::make_unique<GardeDefilement>(groupes.grille(onglet)));
        groupes.grille(onglet).setRows(1);
    }
    const std::vector<std::optional<int>> positions = moteur::positionsParNiveau(lignes);
    for (std::size_t i = 0; i < lignes.size(); ++i) {
        const LigneClassement &ligne = lignes[i];
        ajouteLigne(groupes.grille(ligne.pt + 1),
                    {textePosition(positions[i], {}), QString::number(ligne.equipe),
                     QString::number(ligne.gagnées + ligne.perdues), QString::number(ligne.gagnées),
                     QString::number(ligne.perdues)},
                    ligne);
    }
    if (onglets > 0)
        groupes.choisit(onglets);
}

} // namespace

void AfficheAttendus(Partage &partage, Formulaires &formulaires)
{
    auto *vue = qobject_cast<manqres *>(formulaires.forme(formes::manqres));
    if (vue == nullptr || !vue->isVisible())
        return;
    vue->LegendesManqres();
    const qint64 concours = grille::concoursAffiche(partage, formulaires);
    afficheRencontres(partage, vue->grille(0), concours);
    CalculClassement(partage, QString::number(concours));
    const std::vector<LigneClassement> lignes = LitClassement(partage);
    afficheGeneral(vue->grille(1), lignes);
    if (auto *groupes = qobject_cast<Groupes *>(formulaires.Charge(formes::Groupes)))
        afficheGroupes(partage, *groupes, lignes);
}
