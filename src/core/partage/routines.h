#pragma once

#include "donnees/requetes.h"
#include "partage/partage.h"

using donnees::EntreApostrophes;

/// Name and version of the program, as its title and its welcome window show them.
inline const QString nomProgramme = u"VarloTour "_qs;
inline const QString versionProgramme = u"V0.0.1"_qs;

/// \p valeur padded with zeros on the left and cut to its last \p largeur characters.
QString ZeroPad(const QString &valeur, int largeur);
QString ZeroPad(qint64 valeur, int largeur);

/// \p nombre, a blank, \p mot, and an s behind the word when \p nombre is above 1. Empty in any language but French:
/// its plurals cannot be made by an s.
QString LibellePluriel(const Partage &partage, double nombre, const QString &mot);

/// Text of a score: the words of messages 43 to 45 for -1 to -3, the number otherwise.
QString TexteScore(const Partage &partage, const store::Valeur &score);

/// Word for a competition of teams of \p joueurs players, a blank behind it: what is neither one nor two is three.
QString TailleEquipe(int joueurs);

/// \p texte without its apostrophes.
QString SansApostrophe(QString texte);

/// A format of d, m and y (message 117, such as dd/mm/yyyy) as the toolkit writes it; day first when it is empty.
QString FormatDate(const QString &format);
/// \p date in a format of d, m and y (message 117, such as dd/mm/yyyy); day first when the format is empty. Empty for
/// an invalid date.
QString FormateDate(QDate date, const QString &format);
/// The date of a field in the format of message 117; empty on Null.
QString FormateDate(const Partage &partage, const store::Valeur &date);

/// A number as it is shown: without decimals when it has none.
QString FormateNombre(double nombre);

/// Teams of \p concours whose stage counter is at least \p seuil: of the main bracket when \p tableau is 1, of the
/// complementary one otherwise.
qint64 CompteEquipesStade(Partage &partage, qint64 concours, int seuil, int tableau);

/// First column of the first row of a statement; Null when it gives none.
[[nodiscard]] inline store::Valeur ValeurUnique(Partage &partage, const QString &sql)
{
    return donnees::ValeurUnique(partage.BaseDonnees, sql);
}
