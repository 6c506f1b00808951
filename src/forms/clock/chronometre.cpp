#include "clock/chronometre.h"

qint64 Chronometre::total() const
{
    return m_tourne ? m_acquis + m_horloge.ecoule() - m_depuis : m_acquis;
}

void Chronometre::demarre()
{
    if (m_tourne)
        return;
    m_depuis = m_horloge.ecoule();
    m_tourne = true;
}

void Chronometre::arrete()
{
    m_acquis = total();
    m_tourne = false;
}

void Chronometre::efface()
{
    m_acquis = 0;
    m_depuis = m_horloge.ecoule();
}

Chronometre::Champs Chronometre::champs() const
{
    const qint64 centiemes = total() / 10;
    const qint64 secondes = centiemes / 100;
    const qint64 minutes = secondes / 60;
    const qint64 heures = minutes / 60;
    return {int(heures % 60), int(minutes % 60), int(secondes % 60), int(centiemes % 100)};
}
