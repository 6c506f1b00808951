#pragma once

#include <QtGlobal>

#include <vector>

/// Numbers from 1 to a limit, drawn one by one until none is left.
class Loterie
{
public:
    static constexpr qint16 limiteMax = 999;
    static constexpr qint16 limiteMin = 2; ///< What a limit of 0 becomes.

    /// \p tirages and \p restant outlive the lottery. Rounds are drawn on \p restant too; the lottery brings its own
    /// count back whenever it goes on.
    Loterie(std::vector<qint16> &tirages, qint16 &restant);

    /// Starts over with the numbers 1 to \p limite.
    void remplit(qint16 limite);
    /// Takes all numbers out until the next limit.
    void vide();

    qint16 NbTirages() const { return m_nbTirages; }
    /// Number drawn last, 0 before the first.
    qint16 NumeroTire() const { return m_numeroTire; }
    qint16 sortis() const { return m_sortis; }
    bool epuisee() const { return m_sortis == m_nbTirages; }
    /// Draws the next number; \p hasard is at least 0 and below 1. To be asked only while some are left.
    void tire(double hasard);

private:
    std::vector<qint16> &m_tirages;
    qint16 &m_restant;
    qint16 m_nbTirages = 0;
    qint16 m_numeroTire = 0;
    qint16 m_sortis = 0;
};
