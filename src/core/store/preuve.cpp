#include "store/preuve.h"

#include "store/base_native.h"
#include "store/erreur.h"
#include "store/fichiers.h"
#include "store/schema.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <sqlite3.h>

#include <algorithm>
#include <optional>

namespace store {

namespace {

/// Number of the first journal of every new base: those of the packages bear the one before, from schema.sql.
constexpr quint32 premiereGeneration = 1448374134;

/// Tables without which a file is no base of this program.
constexpr QStringView tablesAttendues[] = {
    u"concours", u"equipes",     u"evolution",  u"scores", u"tbclass", u"tnequipes", u"tirages_pro",
    u"societes", u"typconcours", u"catégories", u"traduc", u"langues", u"joueurs",   u"clubs",
};

/// What tells which journal belongs to a base.
struct Marque
{
    bool enService = false;
    quint32 generation = 0;
};

std::optional<Marque> marque(const QString &fichier, const QString &motDePasse)
{
    try {
        BaseNative base(fichier, motDePasse, BaseNative::Mode::DejaVerifiee);
        return Marque{base.valeurUnique(u"pragma journal_mode"_qs).texte() == u"wal",
                      quint32(base.valeurUnique(u"pragma application_id"_qs).entier())};
    } catch (const Erreur &) {
        return std::nullopt;
    }
}

/// Why \p fichier is refused; nothing when it is sound.
std::optional<Erreur> examine(const QString &fichier, const QString &motDePasse)
{
    try {
        BaseNative base(fichier, motDePasse, BaseNative::Mode::DejaVerifiee);
        verifieNature(base, Schema(base));
        // The pages of two bases may stand side by side: only the comparison of tables and indexes shows it.
        if (base.valeurUnique(u"pragma integrity_check(1)"_qs).texte() != u"ok")
            throw Erreur(Erreur::FichierEndommage, u"Le fichier %1 est endommagé."_qs.arg(base.fichier()));
    } catch (const Erreur &erreur) {
        const int code = erreur.numero() & 0xff;
        if (erreur.numero() > 0 && (code == SQLITE_CORRUPT || code == SQLITE_NOTADB))
            return Erreur(Erreur::FichierEndommage, u"Le fichier %1 est endommagé."_qs.arg(fichier));
        return erreur;
    }
    return std::nullopt;
}

/// Whether the journal in \p entiere belongs to the base \p seule, which is the same without it. A base is marked as
/// one in service, in the file itself, before its first journal; each journal begins with the number that follows the
/// base's. That of a new base is followed by one that nobody can foretell.
bool estSonJournal(const Marque &entiere, const Marque &seule)
{
    return seule.enService && (entiere.generation - seule.generation <= 1 || seule.generation == premiereGeneration);
}

/// The damage that the pages of another base would do.
bool estUnDegat(const Erreur &erreur)
{
    return erreur.numero() == Erreur::FichierEndommage || erreur.numero() == Erreur::MotDePasse
        || erreur.numero() == Erreur::FichierEtranger;
}

/// A folder for the copies of one proof, gone with it.
class DossierPrive
{
public:
    explicit DossierPrive(const QString &fichier)
        : m_fichier(fichier)
    {
    }

    QString chemin(const QString &nom) const { return m_dossier.filePath(nom); }

    void copie(const QString &suffixe, const QString &cible) const
    {
        const QString source = m_fichier + suffixe;
        if (QFile::exists(source) && !QFile::copy(source, cible + suffixe))
            throw Erreur(Erreur::DossierProtege,
                         u"Le fichier %1 ne peut pas être vérifié : il faut de la place dans %2 pour le recopier."_qs
                             .arg(source, m_dossier.path()));
    }

    /// \p erreur, told of the file that was copied.
    Erreur traduit(const Erreur &erreur, const QString &copie) const
    {
        return {erreur.numero(), QString(erreur.phrase()).replace(QDir::toNativeSeparators(copie), m_fichier)};
    }

private:
    QString m_fichier;
    QTemporaryDir m_dossier;
};

bool aDesJournaux(const QString &fichier)
{
    return QFile::exists(fichier)
        && std::ranges::any_of(suffixesJournaux, [&](const QString &s) { return QFile::exists(fichier + s); });
}

bool aUnContenu(const QString &fichier)
{
    return QFileInfo(fichier).size() > 0;
}

} // namespace

quint32 generationSuivante(quint32 generation)
{
    return generation == premiereGeneration ? QRandomGenerator::global()->generate() : generation + 1;
}

void verifieNature(BaseNative &base, const Schema &schema)
{
    if (base.valeurUnique(u"pragma user_version"_qs).entier() > versionBase)
        throw Erreur(Erreur::VersionFuture,
                     u"La base %1 vient d'une version plus récente de VarloTour : c'est elle qu'il "
                     u"faut lancer. Rien n'a été changé."_qs.arg(base.fichier()));
    for (const QStringView attendue : tablesAttendues) {
        if (schema.table(attendue) == nullptr)
            throw Erreur(Erreur::FichierEtranger,
                         u"Le fichier %1 n'est pas une base de ce programme : il n'a pas de table %2."_qs
                             .arg(base.fichier(), attendue));
    }
}

void prouveAvecJournaux(const QString &fichier, const QString &motDePasse)
{
    if (!aDesJournaux(fichier))
        return;
    const QString affichee = QDir::toNativeSeparators(fichier);
    const DossierPrive prive(affichee);
    const QString entiere = prive.chemin(u"entiere.mdb"_qs);
    const QString seule = prive.chemin(u"seule.mdb"_qs);
    prive.copie({}, entiere);
    for (const QString &suffixe : {u"-wal"_qs, u"-journal"_qs})
        prive.copie(suffixe, entiere);
    const bool reporte = aUnContenu(fichier + u"-wal"_qs);
    const bool journal = reporte || aUnContenu(fichier + u"-journal"_qs);
    const std::optional<Erreur> refus = examine(entiere, motDePasse);
    if (refus && (!journal || !estUnDegat(*refus)))
        throw prive.traduit(*refus, entiere);
    if (!refus && !reporte)
        return;
    prive.copie({}, seule);
    const std::optional<Erreur> seulRefus = refus ? examine(seule, motDePasse) : std::nullopt;
    if (seulRefus)
        throw prive.traduit(*seulRefus, seule);
    // A base that a crash has cut while it took its journal in is whole with it only.
    const std::optional<Marque> avec = marque(entiere, motDePasse);
    const std::optional<Marque> sans = marque(seule, motDePasse);
    if (refus || (avec && sans && !estSonJournal(*avec, *sans)))
        throw Erreur(Erreur::JournalEtranger,
                     u"Le fichier %1 est une autre base que celle dont le journal est resté à côté."_qs.arg(affichee));
}

} // namespace store
