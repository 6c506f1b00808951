#pragma once

#include <QDateTime>
#include <QString>

/// An alarm some minutes from now. It compares times of day: set across midnight, it waits for the next day first.
class Alarme
{
public:
    /// \p heure outlives the alarm and holds its date and time.
    explicit Alarme(QDateTime &heure)
        : m_heure(heure)
    {
    }

    bool estMise() const { return m_mise; }
    /// Time of day of the alarm that is set.
    QTime heure() const { return m_heure.time(); }

    /// Sets the alarm \p minutes (a number, with or without decimals) after \p maintenant. False when the text is no
    /// number, or too great a one: nothing is set then.
    [[nodiscard]] bool regle(const QString &minutes, const QDateTime &maintenant);
    void efface();
    /// Whether the alarm is due, now that the clock shows \p affichee; asked once a second at least.
    [[nodiscard]] bool sonne(const QDateTime &affichee);

private:
    QDateTime &m_heure;
    bool m_mise = false;
    QDate m_miseLe;
    bool m_attendMinuit = false;
};
