#pragma once

#include "store/erreur.h"
#include "store/recordset.h"
#include "store/schema.h"

#include <functional>
#include <memory>
#include <vector>

namespace store {

/// What all recordsets of one open file share.
struct BaseOuverte
{
    /// Opens \p fichier, puts it into service, and makes the work tables in memory. Throws Erreur.
    BaseOuverte(const QString &fichier, const QString &motDePasse);
    /// Reads the schema anew; the work tables are empty then.
    void relit();

    BaseNative base;
    Schema schema;
};

/// Kinds of recordset that OpenRecordset gives.
enum TypeRecordset { dbOpenTable = 1, dbOpenSnapshot = 4 };

/// The open database. Statements are in the program's dialect; every failure throws Erreur.
class Database
{
public:
    Database() = default;
    Database(Database &&) noexcept = default;
    Database &operator=(Database &&) noexcept = default;
    ~Database() = default;

    /// Not before it is opened, nor behind Close().
    bool estOuverte() const { return m_ouverte != nullptr; }
    /// Lives as long as this opening: it tells whoever kept something read that the file is another one by now.
    std::weak_ptr<const void> temoin() const { return m_ouverte; }
    /// Path that the file was opened by; throws when it is closed.
    QString fichier() const;

    /// \p source is the name of a table, or a statement. A table, of type 1 or none, gives a walk over the whole of it,
    /// on which Index and Seek work. A statement of type 4 gives a result that cannot be changed; without a type, the
    /// result of a `select *` on one table can be changed. Throws on any other pair of the two.
    Recordset OpenRecordset(QStringView source, int type = 0);
    /// Runs one INSERT, UPDATE or DELETE; gives the number of rows that it changed. An `insert ... select` passes over
    /// the rows that a key refuses.
    int Execute(QStringView instruction);
    /// Names of the tables. No routine asks for them: a database of this kind is expected to tell what it holds.
    QStringList TableDefs() const;
    /// Closes the file. Closing twice does nothing.
    void Close();

    /// Runs \p ecriture as one group of writes, which reaches the disk whole at its end. An error that leaves it undoes
    /// all that it has written, and goes on to the caller. A group inside a group is undone alone, and reaches the disk
    /// with the outer one.
    void EcritEnGroupe(const std::function<void()> &ecriture);

    /// Takes over the tables, fields and indexes that have been added since the opening. No recordset is open.
    void RelitSchema();

    /// The engine under the dialect, for the routines that read many rows at once.
    BaseNative &native();

private:
    friend class Workspace;
    explicit Database(std::shared_ptr<BaseOuverte> ouverte)
        : m_ouverte(std::move(ouverte))
    {
    }

    BaseOuverte &ouverte() const;

    std::shared_ptr<BaseOuverte> m_ouverte;
    int m_groupes = 0;
};

/// Opens databases.
class Workspace
{
public:
    /// Opens the file \p nom; the password follows "PWD=" in \p connexion, case playing no part there. Throws Erreur
    /// with one sentence for each way in which a file can be no base of this program; such a file stays untouched. An
    /// opened one is its user's alone to read from then on. \p exclusif changes nothing, since the program lets no
    /// second one near the base; \p lectureSeule is refused.
    Database OpenDatabase(const QString &nom, bool exclusif, bool lectureSeule, const QString &connexion) const;
};

/// The engine as such.
class DBEngine
{
public:
    /// The one workspace, number 0.
    Workspace &Workspaces(int numero);
    /// Rewrites the closed file \p source into the new file \p cible, under the same password, without the room that
    /// deleted rows left. Throws Erreur when \p cible exists or one of the two cannot be read or written.
    static void CompactDatabase(const QString &source, const QString &cible, const QString &connexion);

private:
    std::vector<Workspace> m_workspaces = std::vector<Workspace>(1);
};

} // namespace store
