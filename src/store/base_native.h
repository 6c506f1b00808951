#pragma once

#include "store/valeur.h"

#include <QHash>
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

/// A prepared statement of the engine's own SQL, taken from the cache of its base and given back at the end.
class Instruction
{
public:
    Instruction() = default;
    Instruction(BaseNative &base, const QString &sql);
    ~Instruction();
    Instruction(Instruction &&autre) noexcept;
    Instruction &operator=(Instruction &&autre) noexcept;

    bool active() const { return m_stmt != nullptr; }
    /// Gives the statement back to the cache.
    void rend();

    /// Binds the parameter \p indice, counted from 1.
    void lie(int indice, const Valeur &valeur);
    /// Steps to the next row; false when there is none, or when the statement gives no rows. Throws Erreur.
    bool avance();

    int colonnes() const;
    QString nomColonne(int colonne) const;
    TypeChamp typeColonne(int colonne) const;
    /// Column \p colonne, counted from 0, of the current row, read as \p type.
    Valeur valeur(int colonne, TypeChamp type = TypeChamp::Libre) const;
    /// Column \p colonne as a whole number, 0 on Null: the quick read for ranking and draws.
    qint64 nombre(int colonne) const;
    bool estNulle(int colonne) const;

private:
    BaseNative *m_base = nullptr;
    QString m_sql;
    sqlite3_stmt *m_stmt = nullptr;
};

/// One open encrypted file, spoken to in the engine's own SQL. The recordsets stand on top of it.
class BaseNative
{
public:
    /// DejaVerifiee is for a further connection to a file that has just been opened and found sound.
    enum class Mode { Creation, LectureEcriture, LectureSeule, DejaVerifiee };

    /// Opens \p fichier under \p motDePasse, or creates it. Throws Erreur with one sentence for each of: file missing,
    /// file of another program, wrong password, damaged file. An existing file is only read here.
    BaseNative(const QString &fichier, const QString &motDePasse, Mode mode);
    ~BaseNative();
    Q_DISABLE_COPY_MOVE(BaseNative)

    QString fichier() const { return m_fichier; }

    /// Prepares the file for durable writes. Kept apart from the opening, so that a caller can first look whether the
    /// file is one of its own. Throws Erreur when the file or its folder cannot be written.
    void metEnService();

    /// Runs every statement of \p script; what they return is ignored.
    void executeScript(const QString &script);
    /// Runs one statement to its end.
    void execute(const QString &sql);
    /// First column of the first row, Null when there is none.
    Valeur valeurUnique(const QString &sql);

    /// Opens, beside the caller's work and once, the second connection that copieVers reads by. A copy is then possible
    /// while statements of this one are at work.
    void prepareCopies(const QString &motDePasse);
    /// Writes the whole base, as it stands on the disk and without its empty pages, into the new file \p cible, which the
    /// same password opens. Not inside a write group; without prepareCopies, not while a statement is at work either.
    /// Throws Erreur when that file exists or cannot be written; a part of it may stay behind then.
    void copieVers(const QString &cible);
    /// Whether anything has been written since the last copy; true as long as there is none.
    bool changeeDepuisCopie() const { return m_changementsCopies != changements(); }

    /// Rows changed since the file was opened.
    int changements() const;
    qint64 dernierRowid() const;
    /// Whether no write group is open.
    bool horsTransaction() const;

private:
    friend class Instruction;

    void ouvre(const QString &motDePasse, Mode mode, bool formatCourant);
    void verifie();
    void exporte(const QString &cible);
    void remplitCible();
    void ferme();
    sqlite3_stmt *emprunte(const QString &sql);
    void rend(const QString &sql, sqlite3_stmt *stmt);
    [[noreturn]] void echoue(int code) const;

    QString m_fichier;
    sqlite3 *m_base = nullptr;
    QHash<QString, sqlite3_stmt *> m_libres;
    QStringList m_anciennete;
    std::future<std::unique_ptr<BaseNative>> m_ouvertureCopiste;
    std::unique_ptr<BaseNative> m_copiste;
    int m_changementsCopies = -1;
};

} // namespace store
