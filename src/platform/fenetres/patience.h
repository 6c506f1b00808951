#pragma once

#include "fenetres/formulaires.h"
#include "fenetres/sablier.h"

#include <QElapsedTimer>

#include <optional>

/// Keeps the notice on the screen, in front of the other forms, as long as the object lives.
class Patience
{
public:
    /// Returns when the notice has been painted.
    Patience(const Contexte &contexte, const QString &texte);
    ~Patience();
    Q_DISABLE_COPY_MOVE(Patience)

    /// Another text in the notice, shown at once.
    void dit(const QString &texte);

private:
    Formulaires &m_formulaires;
};

/// The notice of an operation that is mostly short: the pointer waits at once, the notice comes up when the operation
/// has lasted a second, with a number that rises.
class PatienceTardive
{
public:
    PatienceTardive(const Contexte &contexte, const QString &texte);

    /// Called at each turn of the operation's loop, \p nombre of them done. Often enough it lets the screen and the
    /// timers live; clicks and keys wait.
    void avance(qint64 nombre);

private:
    Contexte m_contexte;
    QString m_texte;
    Sablier m_sablier;
    QElapsedTimer m_debut;
    Respiration m_respiration;
    std::optional<Patience> m_avis;
};
