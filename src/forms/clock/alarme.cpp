#include "clock/alarme.h"

#include <cmath>

namespace {

constexpr double plusLoin = 100.0 * 24 * 60; // minutes

} // namespace

bool Alarme::regle(const QString &minutes, const QDateTime &maintenant)
{
    bool nombre = false;
    const double valeur = QString(minutes).replace(u',', u'.').toDouble(&nombre);
    if (!nombre || !(std::abs(valeur) <= plusLoin))
        return false;
    m_heure = maintenant.addSecs(std::llrint(valeur * 60));
    m_mise = true;
    m_miseLe = maintenant.date();
    m_attendMinuit = m_heure.date() > maintenant.date();
    return true;
}

void Alarme::efface()
{
    m_mise = false;
    m_attendMinuit = false;
}

bool Alarme::sonne(const QDateTime &affichee)
{
    if (!estMise() || !affichee.isValid())
        return false;
    // By the date: an earlier time of day can also be a clock that was put right.
    if (m_attendMinuit && affichee.date() > m_miseLe)
        m_attendMinuit = false;
    return !m_attendMinuit && affichee.time() >= m_heure.time();
}
