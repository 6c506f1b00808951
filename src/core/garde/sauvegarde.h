#pragma once

#include "partage/partage.h"

#include <optional>
#include <vector>

/// Folder of the safety copies, beside the base.
inline const QString dossierSauvegardes = u"sauvegardes"_qs;

/// Why a copy is made. Its word stands in the name of the file.
enum class RaisonCopie {
    Depart, ///< The program has started.
    Purge,
    Suppression, ///< A competition, a team or a player is about to go.
    Tirage, ///< A new draw is about to replace the old one.
    Annulation, ///< A round or a draw is about to be cancelled.
    Restauration, ///< Another copy is about to take the place of the base.
    Demande, ///< The operator has asked for it.
    Secours, ///< The base has gone or changed under the running program.
};

/// A copy in dossierSauvegardes, as its name tells.
struct Copie
{
    QString fichier; ///< Full path.
    QDate jour; ///< When it was made, by the clock of then.
    QTime heure;
    qint64 ordre = 0; ///< Place in the order of making, whatever the clock said; 0 for names from before there was one.
    std::optional<RaisonCopie> raison; ///< Nothing where the name has none that is known.
};

/// What has become of a copy that was asked for.
struct [[nodiscard]] BilanCopie
{
    /// Whether the base stands in no copy: whoever is about to destroy asks first.
    bool echouee() const { return !cause.isEmpty(); }

    QString fichier; ///< The copy that holds the base; empty when it failed, or when there was nothing to copy.
    QString cause; ///< Why there is none, as the end of a sentence; empty otherwise.
};

/// Begins, beside the caller's work, what would make the first copy slow. For an open base.
void PrepareSauvegardes(Partage &partage);

/// Puts a copy of the open base, encrypted like it, into dossierSauvegardes, unless the last one there is proved to
/// hold the same, or Partage::AvecCopies is off, or the base is closed. At most 20 copies stay there: those made first
/// go, except the first of today. Not inside a write group; never throws.
BilanCopie SauveBase(Partage &partage, RaisonCopie raison);

/// Why a copy to a place of the operator's choice has not been made.
enum class EchecCopieVers {
    BaseElleMeme, ///< The place is that of the base in use.
    Ecriture, ///< It cannot be written: protected, full, gone.
    Relecture, ///< What was written does not read back as the base; it is gone again.
};

/// Writes a copy of the open base, encrypted like it, into \p fichier: it bears that name only when it is whole, is on
/// the disk, and has been read back and compared row by row with the base. A file that has the name goes. Nothing when
/// all went well. Not inside a write group; never throws.
[[nodiscard]] std::optional<EchecCopieVers> CopieVers(Partage &partage, const QString &fichier);

/// The copies beside the base in \p dossierProgramme, in the order of making. Files whose names this program does not
/// give are none of them.
std::vector<Copie> ListeCopies(const QString &dossierProgramme);
