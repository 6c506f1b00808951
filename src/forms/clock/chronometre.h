#pragma once

#include "partage/horloge.h"

/// A stopwatch. It reckons with elapsed time and not with the ticks that make it visible, so that a late tick costs
/// nothing.
class Chronometre
{
public:
    /// What it shows; each field goes back to 0 when it carries into the next, the hours too, at 60.
    struct Champs
    {
        int heures = 0;
        int minutes = 0;
        int secondes = 0;
        int centiemes = 0;

        bool operator==(const Champs &) const = default;
    };

    explicit Chronometre(const Horloge &horloge)
        : m_horloge(horloge)
    {
    }

    /// Goes on from what it shows.
    void demarre();
    void arrete();
    /// Back to 0; it goes on counting when it was.
    void efface();
    bool tourne() const { return m_tourne; }
    Champs champs() const;

private:
    qint64 total() const;

    const Horloge &m_horloge;
    qint64 m_acquis = 0; ///< Milliseconds counted up to the last start.
    qint64 m_depuis = 0;
    bool m_tourne = false;
};
