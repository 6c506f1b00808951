#pragma once

#include <QString>

#include <stdexcept>

namespace pilote {

/// The day did not go as it should; the sentence says what was expected and what was seen.
class Incident : public std::runtime_error
{
public:
    explicit Incident(const QString &phrase)
        : std::runtime_error(phrase.toStdString())
    {
    }

    QString phrase() const { return QString::fromUtf8(what()); }
};

/// Ends the day with \p phrase unless \p condition holds.
inline void exige(bool condition, const QString &phrase)
{
    if (!condition)
        throw Incident(phrase);
}

} // namespace pilote
