#pragma once

#include "operateur.h"
#include "photographe.h"

class VuePublique;

namespace demonstration {

/// The public view, on the second screen for the length of a round.
class Affichage
{
public:
    Affichage(Operateur &main, Photographe &photographe)
        : m_main(main)
        , m_photographe(photographe)
    {
    }

    /// Opens the view before the first result of the round \p tour.
    void ouvre(int tour);
    /// The view tells by itself that all results of the round are in; it is closed then.
    void ferme();

private:
    VuePublique *vue() const;
    bool dit(const QString &texte) const;
    void tourneVers(const QString &titre);

    Operateur &m_main;
    Photographe &m_photographe;
};

} // namespace demonstration
