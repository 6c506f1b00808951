#pragma once

#include "garde/inventaire.h"
#include "garde/sauvegarde.h"

#include <QCoreApplication>

/// The safety copies in words, in the language of the program.
class MotsCopies
{
    Q_DECLARE_TR_FUNCTIONS(MotsCopies)

public:
    /// Day and time of making, as the language of \p partage writes days; as French does before one is known.
    static QString moment(const Partage &partage, const Copie &copie);
    static QString raison(std::optional<RaisonCopie> raison);
    /// How much \p copie holds more or less than \p base, the parts set off by commas; empty when the counts are equal.
    static QString ecart(const Inventaire &copie, const Inventaire &base);
    /// What \p inventaire counts, as a part of a sentence.
    static QString contenu(const Inventaire &inventaire);

    /// Heads of a list of copies, and one row of it.
    static QStringList entetes();
    static QStringList ligne(const Partage &partage, const Copie &copie, const Inventaire &inventaire);
};
