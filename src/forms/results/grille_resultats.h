#pragma once

#include "grille/flexgrid.h"

class Formulaires;
struct Partage;

/// What the grids of the result views have in common.
namespace grille {

inline constexpr quint32 vert = FlexGrid::Couleur(0, 255, 0);
inline constexpr quint32 rouge = FlexGrid::Couleur(255, 0, 0);
inline constexpr quint32 blanc = FlexGrid::Couleur(255, 255, 255);

/// Competition that the results form shows, as its list has it; the current one when that form is not loaded.
qint64 concoursAffiche(const Partage &partage, const Formulaires &formulaires);

/// Widths in twips of the columns of a ranking: the screen holds two of them beside the results form.
inline constexpr int largeurRang = 510;
inline constexpr int largeurEquipe = 690;
inline constexpr int largeurNombre = 330; // matches
inline constexpr int largeurPoints = 540;

/// Gives the columns of a ranking their widths: team, then \p nombres columns of matches, then the points. The last one
/// takes what is left.
void serreClassement(FlexGrid &grille, int nombres);

/// Collects the longest text of each column while a grid is filled, so that no text is cut: the columns told in figures
/// are wide enough for team numbers, not for the words that may stand in their place.
class LargeursUtiles
{
public:
    void note(int colonne, const QString &texte, bool gras = false);
    /// Widens the columns of \p grille that would cut a text; none gets narrower.
    void applique(FlexGrid &grille) const;

private:
    struct Texte
    {
        QString texte;
        bool gras = false;
    };
    std::vector<Texte> m_plusLongs;
};

} // namespace grille
