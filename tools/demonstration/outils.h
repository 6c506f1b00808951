#pragma once

#include "horloge_du_jour.h"
#include "operateur.h"
#include "photographe.h"

namespace demonstration {

/// The toolbox between two rounds: some numbers of the lottery, the stopwatch, and an alarm that rings.
class Outils
{
public:
    Outils(Operateur &main, BoitesDuJour &boites, Photographe &photographe, HorlogeDuJour &horloge)
        : m_main(main)
        , m_boites(boites)
        , m_photographe(photographe)
        , m_horloge(horloge)
    {
    }

    /// Opens the toolbox, uses all of it, and closes it. Its reels turn in no time.
    void essaie();

private:
    void tireNumeros();
    void metAlarme();
    void attendSonnerie();

    Operateur &m_main;
    BoitesDuJour &m_boites;
    Photographe &m_photographe;
    HorlogeDuJour &m_horloge;
};

} // namespace demonstration
