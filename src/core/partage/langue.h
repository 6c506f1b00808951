#pragma once

#include "partage/partage.h"

/// Loads the active language: its number, its translator, its icon and its messages. Without an active language the
/// number is 1 and the messages stay as they were. Throws std::out_of_range on a message number outside the table,
/// store::Erreur on a message without a text.
void ChargeLangue(Partage &partage);
