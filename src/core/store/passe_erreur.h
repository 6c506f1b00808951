#pragma once

#include "store/erreur.h"

/// Runs one statement of a handler that passes over the errors of the store; false when it failed. Other exceptions go
/// their way.
template<typename Instruction>
bool PasseErreur(Instruction &&instruction)
{
    try {
        instruction();
    } catch (const store::Erreur &) {
        return false;
    }
    return true;
}
