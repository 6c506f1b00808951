#include "clock/loterie.h"

#include <numeric>

Loterie::Loterie(std::vector<qint16> &tirages, qint16 &restant)
    : m_tirages(tirages)
    , m_restant(restant)
{
}

void Loterie::remplit(qint16 limite)
{
    m_tirages.resize(size_t(limite));
    std::iota(m_tirages.begin(), m_tirages.end(), qint16(1));
    m_nbTirages = limite;
    m_restant = limite;
    m_sortis = 0;
}

void Loterie::vide()
{
    m_tirages.assign(limiteMin, 0);
    m_nbTirages = 0;
    m_restant = 0;
    m_sortis = 0;
}

void Loterie::tire(double hasard)
{
    m_restant = qint16(m_nbTirages - m_sortis);
    const auto k = size_t(hasard * m_restant);
    m_numeroTire = m_tirages.at(k);
    m_tirages[k] = m_tirages[size_t(m_restant) - 1];
    --m_restant;
    ++m_sortis;
}
