#pragma once

class FlexGrid;

/// Rows of the honours list to print.
struct ZonePalmares
{
    const FlexGrid &grille;
    int premiere = 1; ///< At least 1: the header is never printed.
    int derniere = 1;
    bool paysage = false;
};
