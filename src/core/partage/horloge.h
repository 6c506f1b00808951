#pragma once

#include <QDate>
#include <QTime>

#include <chrono>

/// Where the program reads the day and the time; tests give it fixed ones.
class Horloge
{
public:
    virtual ~Horloge() = default;
    virtual QDate jour() const { return QDate::currentDate(); }
    virtual QTime heure() const { return QTime::currentTime(); }
    /// Milliseconds since a moment that means nothing; they only ever grow, whatever is done to the time of day.
    virtual qint64 ecoule() const
    {
        using namespace std::chrono;
        return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
    }
};
