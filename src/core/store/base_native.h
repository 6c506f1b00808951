#pragma once

#include "store/valeur.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <future>
#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace store {

/// Declared types of the fields. `Libre` is a column with no declared type, such as a count.
enum class TypeChamp { Libre, Entier, Reel, Texte, Booleen, Date };

/// Type that a column declaration names; Libre for any other text.
TypeChamp typeDeclare(QStringView declaration);

/// \p valeur as a field of \p type keeps it: a text that reads as a number becomes one, a text date becomes a date.
/// A text that is no number stays as it stands in a number field, the empty text becomes Null there. Throws on a text
/// that is no date in a date field.
Valeur convertit(const Valeur &valeur, TypeChamp type);

class BaseNative;

/// A copy and the base behind it, as they were when the one was known to hold the other.
struct EmpreinteCopie
{
    bool operator==(const EmpreinteCopie &) const = default;

    QString fichier;
    qint64 taille = 0;
    QDateTime modifiee;
    int changements = 0; ///< Of the connection.
};

/// A prepared statement of the engine's own SQL, taken from the cache of its base and given back at the end.
class Instruction
{
public:
    Instruction() = default;
    Instruction(BaseNative &base, const QString &sql);
    ~Instruction();
    Instruction(Instruction &&autre) noexcept;
    Instruction &operator=(Instruction &&autre) noexcept;

    /// Whether it holds a statement: not when made without one, moved away or given back.
    bool active() const { return m_stmt != nullptr; }
    /// Gives the statement back to the cache.
    void rend();

    /// Binds the parameter \p indice, counted from 1.
    void lie(int indice, const Valeur &valeur);
    /// Steps to the next row; false when there is none, or when the statement gives no rows. Throws Erreur.
    bool avance();

    /// Number of columns of the answer; they are counted from 0.
    int colonnes() const;
    /// Name of column \p colonne, counted from 0.
    QString nomColonne(int colonne) const;
    /// Declared type of column \p colonne, counted from 0; Libre for an expression.
    TypeChamp typeColonne(int colonne) const;
    /// Column \p colonne, counted from 0, of the current row, read as \p type.
    Valeur valeur(int colonne, TypeChamp type = TypeChamp::Libre) const;
    /// Column \p colonne as a whole number, 0 on Null: the quick read for ranking and draws.
    qint64 nombre(int colonne) const;
    /// Whether column \p colonne of the current row is Null.
    bool estNulle(int colonne) const;
    /// Whether column \p colonne of the current row holds the same as that of \p autre, kind and bytes.
    bool memeValeur(const Instruction &autre, int colonne) const;

private:
    BaseNative *m_base = nullptr;
    QString m_sql;
    sqlite3_stmt *m_stmt = nullptr;
};

/// What has befallen the file under its path since this program works on it.
enum class EtatFichier {
    Intact,
    Disparu, ///< Removed, or its folder is no more where it was; the open file lives on.
    Remplace, ///< Another file bears its name; the open file lives on without one.
    Reecrit, ///< Somebody else has written into it, or cut it.
};

/// One open encrypted file, spoken to in the engine's own SQL. The recordsets stand on top of it.
class BaseNative
{
public:
    /// DejaVerifiee is for a further connection to a file that has just been opened and found sound.
    enum class Mode { Creation, LectureEcriture, LectureSeule, DejaVerifiee };

    /// Opens \p fichier under \p motDePasse, or creates it. Throws Erreur with one sentence for each of: file missing,
    /// file that may not be read, file of another program, wrong password, damaged file. An existing file is only read
    /// here.
    BaseNative(const QString &fichier, const QString &motDePasse, Mode mode);
    ~BaseNative();
    Q_DISABLE_COPY_MOVE(BaseNative)

    /// Path that the file was opened by.
    QString fichier() const { return m_fichier; }

    /// Prepares the file for durable writes and takes in the journal of an earlier run. Kept apart from the opening, so
    /// that a caller can first look whether the file is one of its own. Throws Erreur when the file or its folder
    /// cannot be written.
    void metEnService();
    /// Whether the journal beside the file holds what the file itself does not.
    bool journalEnAttente() const;
    /// Takes the journal into the file and empties it. Nothing happens in a write group, while somebody reads, or when
    /// the file is no more this program's. Throws Erreur when the disk fails; nothing is lost then.
    void consolide();
    /// Looks at the file under its path, for a base in service: some microseconds.
    EtatFichier etatFichier() const;

    /// From now on \p lecture is given back before any write into the file, which its open view would hold up: its
    /// owner looks at Instruction::active() and searches anew.
    void suitLecture(Instruction *lecture);
    /// To be called before \p lecture goes.
    void oublieLecture(Instruction *lecture);

    /// Runs every statement of \p script; what they return is ignored.
    void executeScript(const QString &script);
    /// Runs one statement to its end.
    void execute(const QString &sql);
    /// First column of the first row, Null when there is none.
    Valeur valeurUnique(const QString &sql);

    /// Opens, beside the caller's work and once, the second connection that copieVers reads by. A copy is then possible
    /// while statements of this one are at work.
    void prepareCopies(const QString &motDePasse);
    /// Writes the whole base, as it stands on the disk and without its empty pages, into the new file \p cible, which
    /// the same password opens. Not inside a write group; without prepareCopies, not while a statement is at work
    /// either. Throws Erreur when that file exists or cannot be written; a part of it may stay behind then.
    void copieVers(const QString &cible);
    /// Remembers that the file \p copie has just been made from this base.
    void retientCopie(const QString &copie);
    /// Whether the file \p copie is proved to hold what the base holds: it is as this connection has left or found it
    /// and nothing has been written since, or the rows of the two are the same. Under the conditions of copieVers; a
    /// file that cannot be read proves nothing.
    [[nodiscard]] bool estDans(const QString &copie);

    /// Rows changed since the file was opened.
    int changements() const;
    /// Row id of the row stored last by this connection, 0 before the first.
    qint64 dernierRowid() const;
    /// Whether no write group is open.
    bool horsTransaction() const;

private:
    friend class Instruction;

    void ouvre(const QString &motDePasse, Mode mode, bool formatCourant);
    void verifie();
    BaseNative &copiste();
    void exporte(const QString &cible);
    void remplitCible();
    bool memeContenu(const QString &copie);
    bool memesLignes(const QString &requete);
    void ferme();
    bool abandonne();

    static int apresEcriture(void *base, sqlite3 *, const char *, int pages);
    static int surveille(void *base, int acte, const char *, const char *, const char *fichier, const char *);
    bool prepareEcriture(sqlite3_stmt *stmt);
    void libereLectures();
    void retientFichier();
    void numerote(quint32 generation);
    /// With the first write of an empty journal the base takes its next number, in the same group: a journal that is
    /// found beside a base of another number is not its own. Whether a group has been opened for the one write.
    bool ouvreGeneration();
    /// Undoes the open group, if there is one.
    void annule();

    sqlite3_stmt *emprunte(const QString &sql);
    void rend(const QString &sql, sqlite3_stmt *stmt);
    void oublie(sqlite3_stmt *stmt);
    [[noreturn]] void echoue(int code) const;

    static constexpr int attenteVerrouMs = 2000;

    QString m_fichier;
    sqlite3 *m_base = nullptr;
    QHash<QString, sqlite3_stmt *> m_libres;
    QStringList m_anciennete;
    QSet<sqlite3_stmt *> m_ecrivains; ///< Statements that change the file.
    QSet<Instruction *> m_lectures;
    bool m_prepareUneEcriture = false;
    bool m_enService = false;
    bool m_journalVierge = false;
    bool m_generationEnCours = false;
    std::future<std::unique_ptr<BaseNative>> m_ouvertureCopiste;
    std::unique_ptr<BaseNative> m_copiste;
    EmpreinteCopie m_copieConnue;
};

} // namespace store
