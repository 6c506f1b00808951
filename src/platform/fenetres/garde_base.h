#pragma once

#include "fenetres/formulaire.h"

#include <QTimer>

/// Tells, once for each change, that the file of the open base has gone, or is another, and puts a copy aside at once.
/// Nothing inside a write group. Called behind every handler: it takes some microseconds.
void SurveilleFichier(const Contexte &contexte);

/// Before the base is closed: a copy of what would stand nowhere afterwards, since its file has gone or is another.
void SauveAvantFermeture(const Contexte &contexte);

/// Watches over the open base from the event loop, for as long as it lives: its file is looked at, and follows what has
/// been entered as soon as the operator rests.
class GardeBase
{
public:
    explicit GardeBase(const Contexte &contexte);

    /// Brings the file up to what has been entered. A failure loses nothing; it is told once.
    void consolide();

private:
    void regarde();

    Contexte m_contexte;
    QTimer m_minuterie;
    int m_changements = -1;
    bool m_echecDit = false;
};
