#pragma once

#include "engine/partie.h"

#include <QString>

#include <functional>
#include <span>

namespace pilote {

/// What a judge lets pass in a round that has been drawn.
struct Indulgences
{
    /// Whether this pair may meet again.
    std::function<bool(const moteur::Partie &)> repetition;
    /// Whether the match may bear its mark, where the side \p remontee has been sent up; without it no mark is looked
    /// at.
    std::function<bool(const moteur::Partie &, std::optional<int> remontee)> marque = {};
};

/// What round \p tour owes to the rules, however it was drawn: each team plays once; behind round 1 all that have
/// played before play, a pair is of one level or holds the one team that its lower level has sent up, one team at most
/// is free, of the lowest level, and nobody meets again but by indulgence. All earlier matches are won by one side. The
/// fault in words, empty when all is well.
QString fauteDuTour(std::span<const moteur::Partie> parties, int tour, const Indulgences &indulgences);

} // namespace pilote
