#include "clock/alarme.h"

#include <cmath>

namespace {

constexpr double plusLoin = 100.0 * 24 * 60; // minutes

} // namespace

bool Alarme::regle(const QString &minutes, const QDateTime &maintenant, QTime affichee)
{
    bool nombre = false;
    const double valeur = QString(minutes).replace(u',', u'.').toDouble(&nombre);
    if (!nombre || !(std::abs(valeur) <= plusLoin))
        return false;
    m_heure = maintenant.addSecs(std::llrint(valeur * 60));
    m_mise = true;
    m_miseA = affichee;
    m_attendMinuit = m_heure.date() > maintenant.date();
    return true;
}

void Alarme::efface()
{
    m_mise = false;
    m_attendMinuit = false;
}

bool Alarme::sonne(QTime affichee)
{
    if (!estMise() || !affichee.isValid())
        return false;
    // A time of day earlier than the one at which the alarm was set: midnight has gone by.
    if (m_attendMinuit && affichee < m_miseA)
        m_attendMinuit = false;
    return !m_attendMinuit && affichee >= m_heure.time();
}
