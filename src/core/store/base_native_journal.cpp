#include "store/base_native.h"

#include "store/erreur.h"
#include "store/preuve.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRandomGenerator>
#include <QTemporaryFile>

#include <sqlite3.h>

#include <utility>
#include <vector>

// The journal beside the base: what has been written stands there until it is taken into the file itself.

namespace store {

namespace {

/// Pages after which the journal is taken in without waiting for a quiet moment.
constexpr int pagesAuPlus = 1000;

/// A base file as this process has last left it.
struct Empreinte
{
    bool operator==(const Empreinte &) const = default;

    qint64 taille = 0;
    QDateTime modifie;
};

Empreinte prends(const QString &fichier)
{
    const QFileInfo infos(fichier);
    return {infos.size(), infos.lastModified()};
}

/// One for each file, whichever connection has written.
Empreinte &laissee(const QString &fichier)
{
    static QHash<QString, Empreinte> empreintes;
    return empreintes[fichier];
}

} // namespace

void BaseNative::metEnService()
{
    QFile ecriture(m_fichier);
    QTemporaryFile essai(QFileInfo(m_fichier).absolutePath() + u"/ecritureXXXXXX"_qs);
    if (!ecriture.open(QIODevice::ReadWrite) || !essai.open())
        throw Erreur(Erreur::DossierProtege,
                     u"Le dossier de %1 ne peut pas être écrit : rien ne pourrait être enregistré."_qs.arg(m_fichier));
    executeScript(u"pragma synchronous = full"_qs);
    if (valeurUnique(u"pragma journal_mode"_qs).texte() != u"wal") {
        // A copy becomes a base of its own.
        numerote(QRandomGenerator::global()->generate());
        executeScript(u"pragma journal_mode = wal"_qs);
        verifie();
    }
    sqlite3_wal_hook(m_base, apresEcriture, this);
    m_enService = true;
    retientFichier();
    consolide();
}

void BaseNative::numerote(quint32 generation)
{
    executeScript(u"pragma application_id = %1"_qs.arg(qint32(generation)));
}

int BaseNative::apresEcriture(void *base, sqlite3 *, const char *, int pages)
{
    auto *lui = static_cast<BaseNative *>(base);
    lui->m_journalVierge = false;
    if (pages >= pagesAuPlus && lui->etatFichier() != EtatFichier::Reecrit) {
        sqlite3_wal_checkpoint_v2(lui->m_base, nullptr, SQLITE_CHECKPOINT_PASSIVE, nullptr, nullptr);
        lui->retientFichier();
    }
    return SQLITE_OK;
}

bool BaseNative::journalEnAttente() const
{
    return QFileInfo(m_fichier + u"-wal"_qs).size() > 0;
}

void BaseNative::consolide()
{
    if (!m_enService || !horsTransaction() || etatFichier() == EtatFichier::Reecrit)
        return;
    libereLectures();
    sqlite3_busy_timeout(m_base, 0);
    const int code = sqlite3_wal_checkpoint_v2(m_base, nullptr, SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr);
    sqlite3_busy_timeout(m_base, attenteVerrouMs);
    retientFichier();
    m_journalVierge = code == SQLITE_OK;
    if (code != SQLITE_OK && (code & 0xff) != SQLITE_BUSY && (code & 0xff) != SQLITE_LOCKED)
        echoue(code);
}

void BaseNative::suitLecture(Instruction *lecture)
{
    m_lectures.insert(lecture);
}

void BaseNative::oublieLecture(Instruction *lecture)
{
    m_lectures.remove(lecture);
}

/// An open statement keeps its view of the base, and with it the journal from being taken in.
void BaseNative::libereLectures()
{
    for (Instruction *lecture : std::as_const(m_lectures))
        lecture->rend();
}

bool BaseNative::ouvreGeneration()
{
    if (horsTransaction())
        m_generationEnCours = false;
    if (!m_enService || !m_journalVierge || m_generationEnCours || journalEnAttente())
        return false;
    const bool seule = horsTransaction();
    if (seule)
        executeScript(u"begin immediate"_qs);
    m_generationEnCours = true;
    try {
        numerote(generationSuivante(quint32(valeurUnique(u"pragma application_id"_qs).entier())));
    } catch (...) {
        if (seule)
            annule();
        throw;
    }
    return seule;
}

void BaseNative::annule()
{
    if (!horsTransaction())
        sqlite3_exec(m_base, "rollback", nullptr, nullptr, nullptr);
}

void BaseNative::retientFichier()
{
    laissee(m_fichier) = prends(m_fichier);
}

EtatFichier BaseNative::etatFichier() const
{
    if (!m_enService)
        return EtatFichier::Intact;
    if (!QFileInfo::exists(m_fichier))
        return EtatFichier::Disparu;
    int deplace = 0;
    sqlite3_file_control(m_base, nullptr, SQLITE_FCNTL_HAS_MOVED, &deplace);
    if (deplace != 0)
        return EtatFichier::Remplace;
    return prends(m_fichier) == laissee(m_fichier) ? EtatFichier::Intact : EtatFichier::Reecrit;
}

/// The engine takes the journal in and removes it, by its name, when the last connection goes: neither may befall the
/// files of somebody else. So the connection stays open until the process ends.
bool BaseNative::abandonne()
{
    static std::vector<sqlite3 *> abandonnees;
    if (m_base == nullptr || etatFichier() == EtatFichier::Intact)
        return false;
    try {
        consolide();
    } catch (const Erreur &) {
        // The journal keeps what the file cannot take.
    }
    abandonnees.push_back(std::exchange(m_base, nullptr));
    return true;
}

} // namespace store
