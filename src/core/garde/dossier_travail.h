#pragma once

#include <QString>

/// The folder that stands for the program's directory: it holds the base, the pictures, the sound, and whatever the
/// program writes. It is the folder of the program itself where it can be written, else the user's own, filled from
/// the originals of the installation.
class DossierTravail
{
public:
    struct Lieux
    {
        QString programme; ///< folder of the program
        QString installes; ///< originals of a system-wide installation; may be missing
        QString personnel; ///< the user's own folder, created when needed
    };

    /// \p programmeInscriptible as dossierInscriptible tells it of Lieux::programme. A folder that cannot be created is
    /// told by remplit.
    DossierTravail(const Lieux &lieux, bool programmeInscriptible);

    /// Full path of the folder.
    const QString &chemin() const { return m_chemin; }
    /// Whether a base stands in that folder.
    bool aUneBase() const;

    /// Puts into the user's own folder what it lacks, and the pictures and sounds that a newer version brings; a base
    /// that is there stays as it is. Nothing happens in the program's own folder. Call it with the folder locked.
    /// Gives the sentence to show: a failure, or where the competitions live when that is not where they were last
    /// seen. Empty on an ordinary day.
    [[nodiscard]] QString remplit() const;

private:
    QString m_chemin;
    QString m_originaux; ///< empty when the program's folder serves
    bool m_baseDeplacee = false; ///< the originals are the program's own folder, which may hold a used base
};

/// Whether files can be created in \p dossier. Tried out, since permissions alone tell too little on some systems.
[[nodiscard]] bool dossierInscriptible(const QString &dossier);
