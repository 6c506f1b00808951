#pragma once

#include "fenetres/nom_forme.h"

/// The names by which forms load, show or ask for each other. What else there is to know of each form stands in the
/// table of app/formes.cpp.
namespace formes {

inline constexpr NomForme Accueil{u"Accueil"};
inline constexpr NomForme AffichagePublic{u"AffichagePublic"};
inline constexpr NomForme CopiesSecurite{u"CopiesSecurite"};
inline constexpr NomForme DetailResultats{u"Détail_résultats"};
inline constexpr NomForme Econcours{u"Econcours"};
inline constexpr NomForme Eequipes{u"Eequipes"};
inline constexpr NomForme Ejoueurs{u"Ejoueurs"};
inline constexpr NomForme EResultats{u"EResultats"};
inline constexpr NomForme FrmHorloge{u"FrmHorloge"};
inline constexpr NomForme Groupes{u"Groupes"};
inline constexpr NomForme I_tirage{u"I_tirage"};
inline constexpr NomForme langues{u"langues"};
inline constexpr NomForme Listco{u"Listco"};
inline constexpr NomForme listeq{u"listeq"};
inline constexpr NomForme Listesoc{u"Listesoc"};
inline constexpr NomForme listjo{u"listjo"};
inline constexpr NomForme manqres{u"manqres"};
inline constexpr NomForme palmares{u"palmares"};
inline constexpr NomForme RapportTirage{u"RapportTirage"};
inline constexpr NomForme Resusoc{u"Resusoc"};
inline constexpr NomForme Saison{u"Saison"};
inline constexpr NomForme valresu{u"valresu"};

} // namespace formes
