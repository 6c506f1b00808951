#pragma once

#include <QString>

/// Whom the engine asks and tells. The results screen answers for the operator.
class Interlocuteur
{
public:
    virtual ~Interlocuteur() = default;
    /// Asks a yes/no question that has something to lose.
    virtual bool demande(const QString &question) = 0;
    /// Asks whether to go on although no copy of the base could be made, for the reason \p cause.
    virtual bool continueSansCopie(const QString &cause) = 0;
    virtual void informe(const QString &texte) = 0;
    /// Warns of something that the operator should know before going on.
    virtual void avertit(const QString &texte) = 0;
    /// Shows \p texte as what is going on.
    virtual void annonce(const QString &texte) = 0;
    /// Adds \p signe to what annonce() has shown.
    virtual void progresse(QStringView signe) = 0;
};
