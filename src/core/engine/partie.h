#pragma once

#include <optional>

namespace moteur {

/// Score that wins a match, and nothing else does.
inline constexpr int scoreGagnant = 13;
/// Points that a bye concedes; it scores scoreGagnant.
inline constexpr int scoreConcedeExempt = 7;

/// One row of `scores`: a match, drawn or played.
struct Partie
{
    int tour = 0;
    int rencontre = 0; ///< Number within the round, from 1; 0 from round 2 on.
    int equipe1 = 0;
    int equipe2 = 0; ///< 0 for a bye.
    std::optional<int> score1 = std::nullopt; ///< Absent until the result is in; -1 to -3 stand for a word.
    std::optional<int> score2 = std::nullopt;
    std::optional<int> repechage = std::nullopt; ///< 1 or 2: the side that was pulled up.

    bool operator==(const Partie &) const = default;
};

} // namespace moteur
