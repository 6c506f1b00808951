#include "app/formes.h"

#include "app/accueil.h"
#include "clock/frmhorloge.h"
#include "competitions/econcours.h"
#include "fenetres/alerte.h"
#include "noms/formes.h"
#include "outils/affichage_public.h"
#include "outils/copies_securite.h"
#include "outils/rapport_tirage.h"
#include "outils/saison.h"
#include "printing/i_tirage.h"
#include "printing/palmares.h"
#include "printing/resusoc.h"
#include "registration/eequipes.h"
#include "registration/ejoueurs.h"
#include "registration/listco.h"
#include "registration/listeq.h"
#include "registration/listesoc.h"
#include "registration/listjo.h"
#include "results/detail_resultats.h"
#include "results/eresultats.h"
#include "results/groupes.h"
#include "results/manqres.h"
#include "results/valresu.h"
#include "ui/langues.h"

#include <map>

namespace {

template<typename Forme>
Formulaire *fabrique(const Contexte &contexte, QWidget *parent)
{
    return new Forme(contexte, parent);
}

using E = Entree;
using enum Ouverture;

// clang-format off
// Name, class, family, what its entry does with it; then its place among those that Accueil, Concours, Equipes, Joueurs,
// Resultats, Purge and Fin unload.
constexpr LigneForme table[] = {
    {formes::Accueil,         fabrique<Accueil>,         E::Accueil,      Montre, { 0, 0, 0,  0,  0,  0, 8}},
    {formes::Econcours,       fabrique<Econcours>,       E::Concours,     Montre, { 1, 0, 1,  1,  1,  1, 1}},
    {formes::Listco,          fabrique<Listco>,          E::Concours,     Rien,   {10, 0, 9, 10, 10,  5, 0}},
    {formes::Eequipes,        fabrique<Eequipes>,        E::Equipes,      Montre, { 2, 1, 0,  3,  2,  2, 2}},
    {formes::Listesoc,        fabrique<Listesoc>,        E::Equipes,      Charge, { 4, 3, 0,  4,  3,  3, 4}},
    {formes::listeq,          fabrique<listeq>,          E::Equipes,      Rien,   { 9, 8, 8,  9,  9,  4, 0}},
    {formes::listjo,          fabrique<listjo>,          E::Equipes,      Rien,   { 0, 0, 0,  0,  0,  0, 0}},
    {formes::Ejoueurs,        fabrique<Ejoueurs>,        E::Joueurs,      Montre, { 8, 7, 7,  0,  8,  0, 0}},
    {formes::EResultats,      fabrique<EResultats>,      E::Resultats,    Montre, { 3, 2, 2,  2,  0,  7, 3}},
    {formes::manqres,         fabrique<manqres>,         E::Resultats,    Rien,   { 5, 4, 3,  5,  4,  9, 5}},
    {formes::valresu,         fabrique<valresu>,         E::Resultats,    Rien,   { 7, 6, 5,  7,  6,  8, 7}},
    {formes::Groupes,         fabrique<Groupes>,         E::Resultats,    Rien,   { 0, 0, 0,  0,  0, 10, 0}},
    {formes::DetailResultats, fabrique<DetailResultats>, E::Resultats,    Rien,   { 0, 0, 0,  0,  0, 13, 0}},
    {formes::I_tirage,        fabrique<I_tirage>,        E::Resultats,    Rien,   { 0, 0, 0,  0,  0,  6, 0}},
    {formes::palmares,        fabrique<palmares>,        E::Resultats,    Rien,   { 6, 5, 4,  6,  5, 11, 6}},
    {formes::Resusoc,         fabrique<Resusoc>,         E::Resultats,    Rien,   { 0, 0, 6,  8,  7, 12, 9}},
    {formes::FrmHorloge,      fabrique<FrmHorloge>,      std::nullopt,    Rien,   {}},
    {formes::langues,         fabrique<langues>,         std::nullopt,    Rien,   {}},
    {formes::CopiesSecurite,  fabrique<CopiesSecurite>,  std::nullopt,    Rien,   { 0, 0, 0,  0,  0, 14, 0}},
    {formes::RapportTirage,   fabrique<RapportTirage>,   std::nullopt,    Rien,   { 0, 0, 0,  0,  0, 15, 0}},
    {formes::AffichagePublic, fabrique<AffichagePublic>, std::nullopt,    Rien,   {}},
    {formes::Saison,          fabrique<FormeSaison>,     std::nullopt,    Rien,   {}},
    {nomAlerte,               fabrique<Alerte>,          std::nullopt,    Rien,   {}},
};
// clang-format on

} // namespace

std::span<const LigneForme> TableFormes()
{
    return table;
}

std::vector<NomForme> FormesDechargees(Entree entree)
{
    std::map<int, NomForme> parRang;
    for (const LigneForme &ligne : table) {
        if (const int rang = ligne.dechargee[std::size_t(entree)]; rang > 0)
            parRang.emplace(rang, ligne.nom);
    }
    std::vector<NomForme> noms;
    noms.reserve(parRang.size());
    for (const auto &[rang, nom] : parRang)
        noms.push_back(nom);
    return noms;
}

void OuvreFamille(Formulaires &formulaires, Entree entree)
{
    formulaires.Decharge(FormesDechargees(entree));
    for (const Ouverture etape : {Charge, Montre}) {
        for (const LigneForme &ligne : table) {
            if (ligne.famille != entree || ligne.ouverture != etape)
                continue;
            if (etape == Charge)
                formulaires.Charge(ligne.nom);
            else
                formulaires.Montre(ligne.nom);
        }
    }
}
