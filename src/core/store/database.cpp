#include "store/database.h"

#include "store/dialecte.h"
#include "store/droits.h"
#include "store/preuve.h"
#include "store/recordset_base.h"

#include <QScopeGuard>

namespace store {

namespace {

/// Tables that are rebuilt from others each time they are needed: they live in memory under the same name.
constexpr QStringView tablesDeTravail[] = {u"tbclass"};

QString motDePasseDe(const QString &connexion)
{
    for (const QString &partie : connexion.split(u';')) {
        if (partie.startsWith(u"pwd=", Qt::CaseInsensitive))
            return partie.mid(4);
    }
    return {};
}

void creeTablesDeTravail(BaseNative &base)
{
    for (const QStringView nom : tablesDeTravail) {
        QStringList creations;
        Instruction lecture(base,
                            u"select sql from sqlite_master where tbl_name = '%1' and sql is not null "
                            u"order by type desc"_qs.arg(nom));
        while (lecture.avance())
            creations += lecture.valeur(0).texte();
        lecture.rend();
        for (const QString &creation : std::as_const(creations)) {
            QString temporaire = creation;
            if (temporaire.startsWith(u"create table", Qt::CaseInsensitive))
                temporaire.replace(0, 12, u"create temp table"_qs);
            else
                temporaire.replace(temporaire.indexOf(u"index", 0, Qt::CaseInsensitive), 5, u"index temp."_qs);
            base.execute(temporaire);
        }
    }
}

} // namespace

BaseOuverte::BaseOuverte(const QString &fichier, const QString &motDePasse)
    : base(fichier, motDePasse, BaseNative::Mode::LectureEcriture)
    , schema(base)
{
    verifieNature(base, schema);
    base.metEnService();
    reserveBase(base.fichier());
    creeTablesDeTravail(base);
}

void BaseOuverte::relit()
{
    schema = Schema(base);
    for (const QStringView nom : tablesDeTravail)
        base.execute(u"drop table temp.[%1]"_qs.arg(nom));
    creeTablesDeTravail(base);
}

QString Database::fichier() const
{
    return ouverte().base.fichier();
}

BaseOuverte &Database::ouverte() const
{
    if (m_ouverte == nullptr)
        throw Erreur(Erreur::Ferme, u"La base est fermée."_qs);
    return *m_ouverte;
}

Recordset Database::OpenRecordset(QStringView source, int type)
{
    const Schema &schema = ouverte().schema;
    const Table *table = schema.table(source.trimmed());
    if (table != nullptr && type == dbOpenSnapshot)
        throw Erreur(Erreur::Instruction, u"La table %1 n'a de vue figée que par une instruction."_qs.arg(source));
    if (table != nullptr)
        return Recordset(std::make_unique<RecordsetTable>(m_ouverte, table));
    if (type == dbOpenTable)
        throw Erreur(Erreur::ObjetInconnu, u"La table %1 n'existe pas."_qs.arg(source));
    const InstructionTraduite traduite = Traduit(source.toString(), schema);
    const Table *modifiable = type == dbOpenSnapshot ? nullptr : schema.table(traduite.tableUnique);
    return Recordset(
        std::make_unique<RecordsetRequete>(m_ouverte, traduite.sql, modifiable, !traduite.tableUnique.isEmpty()));
}

int Database::Execute(QStringView instruction)
{
    BaseNative &base = ouverte().base;
    const int avant = base.changements();
    base.execute(Traduit(instruction, ouverte().schema).sql);
    return base.changements() - avant;
}

QStringList Database::TableDefs() const
{
    return ouverte().schema.tables();
}

void Database::Close()
{
    m_ouverte.reset();
}

void Database::EcritEnGroupe(const std::function<void()> &ecriture)
{
    BaseNative &base = ouverte().base;
    const bool exterieur = m_groupes == 0;
    base.execute(exterieur ? u"begin immediate"_qs : u"savepoint groupe"_qs);
    ++m_groupes;
    const auto fin = qScopeGuard([this] { --m_groupes; });
    // The engine undoes and ends a group by itself when the disk fails: then there is nothing left to end.
    try {
        ecriture();
        if (!base.horsTransaction())
            base.execute(exterieur ? u"commit"_qs : u"release groupe"_qs);
    } catch (...) {
        if (!base.horsTransaction())
            base.executeScript(exterieur ? u"rollback"_qs : u"rollback to groupe; release groupe"_qs);
        throw;
    }
}

void Database::RelitSchema()
{
    ouverte().relit();
}

BaseNative &Database::native()
{
    return ouverte().base;
}

Database Workspace::OpenDatabase(const QString &nom, bool, bool lectureSeule, const QString &connexion) const
{
    if (lectureSeule)
        throw Erreur(Erreur::LectureSeule, u"La base s'ouvre toujours en écriture."_qs);
    const QString motDePasse = motDePasseDe(connexion);
    prouveAvecJournaux(nom, motDePasse);
    return Database(std::make_shared<BaseOuverte>(nom, motDePasse));
}

Workspace &DBEngine::Workspaces(int numero)
{
    return m_workspaces.at(std::size_t(numero));
}

void DBEngine::CompactDatabase(const QString &source, const QString &cible, const QString &connexion)
{
    BaseNative(source, motDePasseDe(connexion), BaseNative::Mode::LectureEcriture).copieVers(cible);
}

} // namespace store
