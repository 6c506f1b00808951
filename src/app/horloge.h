#pragma once

#include <QDate>
#include <QTime>

/// Where the program reads the day and the time; tests give it fixed ones.
class Horloge
{
public:
    virtual ~Horloge() = default;
    virtual QDate jour() const { return QDate::currentDate(); }
    virtual QTime heure() const { return QTime::currentTime(); }
};
