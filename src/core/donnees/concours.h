#pragma once

#include "store/database.h"

#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace donnees {

/// One competition as its row tells it; a field without a value reads as empty, 0 or no.
struct Concours
{
    qint32 numero = 0;
    store::Valeur date = {}; ///< May be Null.
    QString lieu = {};
    QString organisateur = {};
    QString type = {}; ///< Code, " - " and label.
    QString categorie = {};
    int tour = 0; ///< Round drawn last in the main bracket, 0 before the first.
    bool repechage = false;
    bool pro = false;
};

/// A kind of competition that can be chosen.
struct TypeConcours
{
    QString code;
    QString libelle;
    int joueurs = 0; ///< Players a team.

    /// The type as a competition holds it.
    QString texte() const { return code + u" - "_qs + libelle; }
};

/// The competition of a number, or of the text of one.
[[nodiscard]] std::optional<Concours> TrouveConcours(store::Database &base, const store::Valeur &numero);
/// All competitions, the greatest number last.
[[nodiscard]] std::vector<Concours> ListeConcours(store::Database &base);
/// Greatest number of a competition, 0 without any.
[[nodiscard]] qint32 DernierConcours(store::Database &base);

/// Stores a new competition before its first round, whatever its number and round say; gives the number that the store
/// has chosen. \p annonce is told that number before the row is stored.
qint32 AjouteConcours(store::Database &base, const Concours &concours, const std::function<void(qint32)> &annonce = {});
/// Stores what can be edited of a competition. Throws store::Erreur when there is none of its number.
void CorrigeConcours(store::Database &base, const Concours &concours);
/// Copies the competition \p numero, a number as it is shown, with its teams and without its draw, whole or not at all;
/// gives the number of the copy.
[[nodiscard]] qint32 CopieConcours(store::Database &base, const QString &numero);
/// Removes a competition and all that hangs on it, whole or not at all.
void SupprimeConcours(store::Database &base, const Concours &concours);

/// The type of a code, in whatever language stands first.
[[nodiscard]] std::optional<TypeConcours> TrouveType(store::Database &base, const QString &code);
[[nodiscard]] std::vector<TypeConcours> ListeTypes(store::Database &base, int langue);
/// Labels of the categories, in their order.
[[nodiscard]] QStringList ListeCategories(store::Database &base, int langue);

} // namespace donnees
