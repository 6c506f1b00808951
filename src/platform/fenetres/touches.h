#pragma once

/// Key codes as the key handlers compare them.
namespace Touche {
inline constexpr int Tabulation = 9;
inline constexpr int Entree = 13;
inline constexpr int Echap = 27;
inline constexpr int Droite = 39;

/// Whether a key goes on to the next field of an entry: Enter or the right arrow.
constexpr bool Avance(int code)
{
    return code == Entree || code == Droite;
}
} // namespace Touche

/// Shift states as the handlers compare them, added up.
namespace Maj {
inline constexpr int Majuscule = 1;
inline constexpr int Controle = 2;
inline constexpr int Alternative = 4;
} // namespace Maj

/// Mouse buttons as the handlers compare them.
namespace Bouton {
inline constexpr int Gauche = 1;
inline constexpr int Droit = 2;
} // namespace Bouton
