#pragma once

#include "grille/flexgrid.h"

#include <algorithm>

/// Keeps the rows on screen where they are while a grid is filled anew.
class GardeDefilement
{
public:
    explicit GardeDefilement(FlexGrid &grille)
        : m_grille(grille)
        , m_haut(grille.TopRow())
    {
    }
    ~GardeDefilement()
    {
        if (m_haut > 1 && m_grille.Rows() > 1)
            m_grille.setTopRow(std::min(m_haut, m_grille.Rows() - 1));
    }
    Q_DISABLE_COPY_MOVE(GardeDefilement)

private:
    FlexGrid &m_grille;
    int m_haut;
};
