#pragma once

#include "engine/partie.h"

#include <QString>

#include <span>
#include <vector>

class SourceAleatoire;

namespace moteur {

/// A team that takes part in the first round, with the club of its first member.
struct EquipeInscrite
{
    int equipe = 0;
    QString club;
};

/// No team had the bye of the round before.
inline constexpr int pasDExempt = -1;

/// Draws round 1 among \p equipes (in the order of the store): two shuffles, neighbours paired, sides exchanged so
/// that two teams of one club are kept apart where a pair without that club exists. Gives the matches to write, in
/// order, their scores open; the bye of an odd field comes last. Fewer than two teams give no match.
///
/// \p exemptPrecedent is the team that had the bye of the round before and is drawn first, or pasDExempt.
///
/// With an odd field whose clubs differ by the case of their letters alone, a team can change places with the empty
/// side of the bye: its former opponent is then given a bye too, and the team itself has no match.
[[nodiscard]] std::vector<Partie> tireTour1(std::span<const EquipeInscrite> equipes, int exemptPrecedent,
                                            SourceAleatoire &alea);

} // namespace moteur
