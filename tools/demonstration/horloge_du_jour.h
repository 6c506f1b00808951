#pragma once

#include "partage/horloge.h"

namespace demonstration {

/// The day of the demonstration, always the same; its time passes when the demonstration says so.
class HorlogeDuJour final : public Horloge
{
public:
    QDate jour() const override { return QDate(2026, 6, 14); }
    QTime heure() const override { return m_heure; }
    void passe(int secondes) { m_heure = m_heure.addSecs(secondes); }

private:
    QTime m_heure{9, 0};
};

} // namespace demonstration
