#pragma once

#include "fenetres/formulaires.h"

#include <array>
#include <optional>
#include <span>
#include <vector>

/// What the operator picks in the main window, its end included.
enum class Entree { Accueil, Concours, Equipes, Joueurs, Resultats, Purge, Fin };
inline constexpr std::size_t nombreEntrees = 7;

/// What the entry of its family does with a form.
enum class Ouverture {
    Rien, ///< Other forms open it.
    Charge, ///< Loads it before the family's form is shown.
    Montre, ///< Shows it: it is the family's form.
};

/// A form of the program.
struct LigneForme
{
    NomForme nom;
    Formulaire *(*fabrique)(const Contexte &, QWidget *parent);
    std::optional<Entree> famille; ///< Nothing for those that stay beside every family.
    Ouverture ouverture;
    /// Per Entree, which place the form has among those that it unloads, from 1; 0 when the form stays.
    std::array<int, nombreEntrees> dechargee;
};

/// All forms of the program.
std::span<const LigneForme> TableFormes();

/// The forms that \p entree unloads, in its order.
std::vector<NomForme> FormesDechargees(Entree entree);

/// Opens the family of \p entree: unloads the forms of the others, loads and shows its own.
void OuvreFamille(Formulaires &formulaires, Entree entree);
