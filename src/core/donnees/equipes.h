#pragma once

#include "store/database.h"

#include <optional>
#include <vector>

namespace donnees {

/// The known players stand under this competition, each as a team of one.
inline constexpr qint32 fichierJoueurs = 0;

/// One member of a team, or a known player.
struct Membre
{
    QString nom;
    QString prenom;
    QString licence;
    QString club = {};
    qint64 equipe = 0; ///< Number of the team, or of the known player.
    qint64 place = 0; ///< In the team, from 0.
    QString sexe = {}; ///< "M" or "F"; known players only.
    store::Valeur ne = {}; ///< Date of birth, Null without one; known players only.
};

/// A team as it is registered.
struct Equipe
{
    qint32 concours = 0;
    qint64 numero = 0;
    QString club;
    std::vector<Membre> membres;
};

/// Members of one team in their places; none when nobody bears the number.
[[nodiscard]] std::vector<Membre> MembresDeLEquipe(store::Database &base, qint32 concours, qint64 numero);
/// Members of all teams, team after team.
[[nodiscard]] std::vector<Membre> MembresDuConcours(store::Database &base, qint32 concours);
/// Members entered under one club, team after team. Throws store::Erreur when its name holds an apostrophe.
[[nodiscard]] std::vector<Membre> MembresDuClub(store::Database &base, qint32 concours, const QString &club);
/// First member of the team or, when it has gone, of the one behind it; nothing behind the last.
[[nodiscard]] std::optional<Membre> PremierMembre(store::Database &base, qint32 concours, qint64 numero);
/// Teams that have a member of surname and first initial \p cle, in entry order. Throws store::Erreur on an apostrophe.
[[nodiscard]] std::vector<qint64> EquipesDuNom(store::Database &base, qint32 concours, const QString &cle);

/// Who bears \p licence in \p concours, a number or the text of one.
[[nodiscard]] std::optional<Membre> MembreEngage(store::Database &base, const QString &licence,
                                                 const store::Valeur &concours);
/// The known player who bears \p licence.
[[nodiscard]] std::optional<Membre> JoueurConnu(store::Database &base, const QString &licence);
/// The known player who bears \p licence, or whoever has played under it: a club may have changed since a team was
/// entered, so the player's card goes first.
[[nodiscard]] std::optional<Membre> JoueurDeLicence(store::Database &base, const QString &licence);
/// All known players by name, or those of \p club when it is not empty.
[[nodiscard]] std::vector<Membre> JoueursConnus(store::Database &base, const QString &club);

/// Whether the number is that of a team, or of a known player.
[[nodiscard]] bool EquipeExiste(store::Database &base, qint32 concours, qint64 numero);
/// Whether the team has its row of `evolution`, without which it plays in no draw.
[[nodiscard]] bool EstEngagee(store::Database &base, qint32 concours, qint64 numero);
/// Highest team number of the competition, nothing without a team.
[[nodiscard]] std::optional<qint64> PlusHautNumero(store::Database &base, qint32 concours);
/// Numbers of the teams in ascending order.
[[nodiscard]] std::vector<qint64> NumerosDesEquipes(store::Database &base, qint32 concours);
/// Members of all teams together.
[[nodiscard]] qint64 CompteMembres(store::Database &base, qint32 concours);

} // namespace donnees
