#pragma once

#include "store/collation.h"
#include "store/database.h"

#include <map>
#include <optional>
#include <vector>

namespace donnees {

/// Club of a team whose members come from several clubs: it keeps no two teams apart.
inline constexpr QStringView clubPanache = u"*Panachée";

/// Whether \p club is that of mixed teams, in any case of letters. The draw of the second round alone compares exactly.
[[nodiscard]] bool EstPanache(QStringView club);

struct Club
{
    QString nom;
    std::optional<qint64> code = std::nullopt; ///< The first of an empty table has none.
};

/// All clubs, in the order of their names.
[[nodiscard]] std::vector<Club> ListeClubs(store::Database &base);
[[nodiscard]] std::optional<Club> TrouveClub(store::Database &base, const QString &nom);
/// Stores a club under the code behind the highest.
void AjouteClub(store::Database &base, const QString &nom);
/// Removes a club; teams and players keep its name. Throws store::Erreur when the name holds an apostrophe.
void SupprimeClub(store::Database &base, const QString &nom);

/// Clubs that the file of known players gives to the licences of one competition, read at once: a list asks for each of
/// its rows.
class ClubsConnus
{
public:
    ClubsConnus(store::Database &base, qint32 concours);

    /// Club of the first known player who bears \p licence, which may be empty; nothing when nobody bears it.
    [[nodiscard]] std::optional<QString> club(const QString &licence) const;

private:
    struct Ordre
    {
        bool operator()(const QString &a, const QString &b) const { return store::CompareFrancais(a, b) < 0; }
    };
    std::map<QString, QString, Ordre> m_clubs;
};

} // namespace donnees
