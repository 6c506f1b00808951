#pragma once

#include "platform/boites.h"
#include "platform/imprimante.h"

#include <QStringList>

#include <deque>

/// Boxes answered in advance: each one must have been announced, in order. A box that nobody announced fails the
/// test, and so does an answer that no box has asked for. What is shown are real boxes, answered at once, so that the
/// focus comes and goes as it does for an operator.
class BoitesAnnoncees : public Boites
{
public:
    ~BoitesAnnoncees() override;

    /// The next message box says \p partie somewhere in its text (and bears \p titre when one is given), and is
    /// answered with \p reponse.
    void attend(const QString &partie, ReponseBoite reponse = ReponseBoite::OK, const QString &titre = {});
    /// From now on every box is answered with OK and looked at no more: for measures, which have nobody to answer.
    void repondATout() { m_muette = true; }
    /// Fails the test when an announced box has not come, and forgets it.
    void verifie();

    ReponseBoite MsgBox(const QString &texte, int drapeaux, const QString &titre) override;
    std::optional<QString> InputBox(const QString &texte, const QString &titre) override;
    std::unique_ptr<Destination> ShowPrinter() override { return nullptr; }

    int derniersDrapeaux = 0;

private:
    struct Attendue
    {
        QString partie;
        ReponseBoite reponse;
        QString titre;
    };
    std::deque<Attendue> m_attendues;
    bool m_muette = false;
};
