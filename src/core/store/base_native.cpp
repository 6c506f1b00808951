#include "store/base_native.h"

#include "store/collation.h"
#include "store/erreur.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QVersionNumber>

#include <sqlite3.h>

namespace store {

namespace {

constexpr qint64 taillePage = 1024;
constexpr qsizetype instructionsGardees = 128;

QStringView texteBrut(const void *octets, int taille)
{
    return QStringView(static_cast<const char16_t *>(octets), taille / 2);
}

int collationFrancaise(void *, int tailleA, const void *a, int tailleB, const void *b)
{
    return CompareFrancaisUtf8({static_cast<const char *>(a), tailleA}, {static_cast<const char *>(b), tailleB});
}

QString texteArgument(sqlite3_value *valeur)
{
    const auto *octets = sqlite3_value_text16(valeur);
    return texteBrut(octets, sqlite3_value_bytes16(valeur)).toString();
}

void fonctionLeft(sqlite3_context *contexte, int, sqlite3_value **arguments)
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL)
        return sqlite3_result_null(contexte);
    const QString debut = texteArgument(arguments[0]).left(sqlite3_value_int(arguments[1]));
    sqlite3_result_text16(contexte, debut.utf16(), int(debut.size() * 2), SQLITE_TRANSIENT);
}

void fonctionLike(sqlite3_context *contexte, int, sqlite3_value **arguments)
{
    for (int i = 0; i < 2; ++i) {
        if (sqlite3_value_type(arguments[i]) == SQLITE_NULL)
            return sqlite3_result_null(contexte);
    }
    sqlite3_result_int(contexte, Ressemble(texteArgument(arguments[1]), texteArgument(arguments[0])) ? 1 : 0);
}

bool estUneBaseEnClair(const QString &fichier)
{
    QFile lu(fichier);
    return lu.open(QIODevice::ReadOnly) && lu.read(15) == "SQLite format 3";
}

QString phraseMoteur(int code, const QString &detail)
{
    switch (code & 0xff) {
    case SQLITE_FULL:
        return u"Le disque est plein : la dernière saisie n'a pas été enregistrée."_qs;
    case SQLITE_READONLY:
    case SQLITE_PERM:
        return u"La base ne peut pas être modifiée : le fichier ou son dossier est protégé en écriture."_qs;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return u"La base est occupée par un autre programme."_qs;
    case SQLITE_IOERR:
    case SQLITE_CANTOPEN:
        return u"Le disque ne répond pas : la lecture ou l'écriture de la base a échoué."_qs;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return u"Le fichier de la base est endommagé."_qs;
    case SQLITE_CONSTRAINT:
        return u"Une ligne de même clé existe déjà dans la base."_qs;
    case SQLITE_NOMEM:
    case SQLITE_TOOBIG:
        return u"La mémoire ne suffit pas pour cette opération."_qs;
    default:
        return u"La base n'a pas pu exécuter une opération (%1)."_qs.arg(detail);
    }
}

} // namespace

TypeChamp typeDeclare(QStringView declaration)
{
    static const QHash<QString, TypeChamp> types{
        {u"INTEGER"_qs, TypeChamp::Entier},  {u"REAL"_qs, TypeChamp::Reel}, {u"TEXT"_qs, TypeChamp::Texte},
        {u"BOOLEAN"_qs, TypeChamp::Booleen}, {u"DATE"_qs, TypeChamp::Date},
    };
    return types.value(declaration.toString().toUpper(), TypeChamp::Libre);
}

Valeur convertit(const Valeur &valeur, TypeChamp type)
{
    if (valeur.estNull())
        return valeur;
    switch (type) {
    case TypeChamp::Entier:
    case TypeChamp::Reel:
        if (valeur.estTexte()) {
            const QString texte = valeur.texte().trimmed();
            if (texte.isEmpty())
                return {};
            if (!EstNumerique(texte))
                return valeur;
        }
        return type == TypeChamp::Entier ? Valeur(valeur.entier()) : Valeur(valeur.reel());
    case TypeChamp::Booleen:
        return valeur.booleen();
    case TypeChamp::Date:
        return valeur.date();
    case TypeChamp::Texte:
        return valeur.texte();
    case TypeChamp::Libre:
        break;
    }
    return valeur;
}

Instruction::Instruction(BaseNative &base, const QString &sql)
    : m_base(&base)
    , m_sql(sql)
    , m_stmt(base.emprunte(sql))
{
}

Instruction::~Instruction()
{
    rend();
}

Instruction::Instruction(Instruction &&autre) noexcept
    : m_base(std::exchange(autre.m_base, nullptr))
    , m_sql(std::move(autre.m_sql))
    , m_stmt(std::exchange(autre.m_stmt, nullptr))
{
}

Instruction &Instruction::operator=(Instruction &&autre) noexcept
{
    if (this != &autre) {
        rend();
        m_base = std::exchange(autre.m_base, nullptr);
        m_sql = std::move(autre.m_sql);
        m_stmt = std::exchange(autre.m_stmt, nullptr);
    }
    return *this;
}

void Instruction::rend()
{
    if (m_stmt != nullptr)
        m_base->rend(m_sql, std::exchange(m_stmt, nullptr));
}

void Instruction::lie(int indice, const Valeur &valeur)
{
    int code = SQLITE_OK;
    if (valeur.estNull()) {
        code = sqlite3_bind_null(m_stmt, indice);
    } else if (valeur.estReel()) {
        code = sqlite3_bind_double(m_stmt, indice, valeur.reel());
    } else if (valeur.estEntier() || valeur.estBooleen()) {
        code = sqlite3_bind_int64(m_stmt, indice, valeur.entier());
    } else {
        const QString texte = valeur.estDate() ? valeur.date().toString(Qt::ISODate) : valeur.texte();
        code = sqlite3_bind_text16(m_stmt, indice, texte.utf16(), int(texte.size() * 2), SQLITE_TRANSIENT);
    }
    if (code != SQLITE_OK)
        m_base->echoue(code);
}

bool Instruction::avance()
{
    const bool groupe = m_base->prepareEcriture(m_stmt);
    const int code = sqlite3_step(m_stmt);
    if (code == SQLITE_ROW)
        return true;
    sqlite3_reset(m_stmt);
    const auto fin = qScopeGuard([&] {
        if (groupe)
            m_base->annule();
    });
    if (code != SQLITE_DONE)
        m_base->echoue(code);
    if (groupe)
        m_base->executeScript(u"commit"_qs);
    return false;
}

int Instruction::colonnes() const
{
    return sqlite3_column_count(m_stmt);
}

QString Instruction::nomColonne(int colonne) const
{
    return QString::fromUtf8(sqlite3_column_name(m_stmt, colonne));
}

TypeChamp Instruction::typeColonne(int colonne) const
{
    return typeDeclare(QString::fromUtf8(sqlite3_column_decltype(m_stmt, colonne)));
}

Valeur Instruction::valeur(int colonne, TypeChamp type) const
{
    switch (sqlite3_column_type(m_stmt, colonne)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER: {
        const qint64 nombre = sqlite3_column_int64(m_stmt, colonne);
        return type == TypeChamp::Booleen ? Valeur(nombre != 0) : Valeur(nombre);
    }
    case SQLITE_FLOAT:
        return sqlite3_column_double(m_stmt, colonne);
    default: {
        // In the encoding of the file: the engine would need a buffer of its own to change it.
        const auto *octets = reinterpret_cast<const char *>(sqlite3_column_text(m_stmt, colonne));
        const QString texte = QString::fromUtf8(octets, sqlite3_column_bytes(m_stmt, colonne));
        return type == TypeChamp::Date ? Valeur(QDate::fromString(texte, Qt::ISODate)) : Valeur(texte);
    }
    }
}

qint64 Instruction::nombre(int colonne) const
{
    return sqlite3_column_int64(m_stmt, colonne);
}

bool Instruction::estNulle(int colonne) const
{
    return sqlite3_column_type(m_stmt, colonne) == SQLITE_NULL;
}

BaseNative::BaseNative(const QString &fichier, const QString &motDePasse, Mode mode)
    : m_fichier(QDir::toNativeSeparators(fichier))
{
    const QFileInfo infos(fichier);
    if (mode != Mode::Creation) {
        if (!infos.isFile())
            throw Erreur(Erreur::FichierAbsent, u"Le fichier %1 est introuvable."_qs.arg(m_fichier));
        if (infos.size() == 0 || estUneBaseEnClair(fichier))
            throw Erreur(Erreur::FichierEtranger,
                         u"Le fichier %1 n'est pas une base de ce programme."_qs.arg(m_fichier));
    }
    try {
        ouvre(motDePasse, mode, false);
    } catch (const Erreur &erreur) {
        // Only a key that does not fit has left the file open, to be asked for the version.
        const auto version = [this] {
            return QVersionNumber::fromString(valeurUnique(u"pragma cipher_version"_qs).texte());
        };
        if (erreur.numero() != Erreur::MotDePasse || version().majorVersion() < 4) {
            ferme();
            throw;
        }
        ferme();
        ouvre(motDePasse, mode, true);
    }
    try {
        if (mode != Mode::Creation && mode != Mode::DejaVerifiee)
            verifie();
        executeScript(u"pragma temp_store = memory; pragma cache_size = -16000;"_qs);
    } catch (...) {
        ferme();
        throw;
    }
}

BaseNative::~BaseNative()
{
    ferme();
}

/// Opens the file and reads its schema, which fails when the key does not fit. Files are kept in the format of
/// SQLCipher 3, which every version reads; \p formatCourant tries that of version 4 instead.
void BaseNative::ouvre(const QString &motDePasse, Mode mode, bool formatCourant)
{
    // Without the right to create, the engine could not attach the new file of a compaction either.
    const int drapeaux = mode == Mode::LectureSeule ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    const int ouverture = sqlite3_open_v2(m_fichier.toUtf8().constData(), &m_base, drapeaux, nullptr);
    if (ouverture != SQLITE_OK) {
        ferme();
        throw Erreur(Erreur::DossierProtege,
                     u"Le fichier %1 ne peut pas être ouvert : il est protégé."_qs.arg(m_fichier));
    }
    sqlite3_extended_result_codes(m_base, 1);
    sqlite3_busy_timeout(m_base, attenteVerrouMs);
    sqlite3_set_authorizer(m_base, surveille, this);
    sqlite3_create_collation(m_base, "FRANCAIS", SQLITE_UTF8, nullptr, collationFrancaise);
    sqlite3_create_function(m_base, "vt_left", 2, SQLITE_UTF16 | SQLITE_DETERMINISTIC, nullptr, fonctionLeft, nullptr,
                            nullptr);
    sqlite3_create_function(m_base, "like", 2, SQLITE_UTF16 | SQLITE_DETERMINISTIC, nullptr, fonctionLike, nullptr,
                            nullptr);
    const QByteArray cle = motDePasse.toUtf8();
    sqlite3_key(m_base, cle.constData(), int(cle.size()));
    // The default holds for the files that are attached to this one.
    executeScript(
        u"pragma cipher_default_compatibility = %1; pragma cipher_compatibility = %1"_qs.arg(formatCourant ? 4 : 3));
    try {
        valeurUnique(u"select count(*) from sqlite_master"_qs);
    } catch (const Erreur &erreur) {
        const int code = erreur.numero() & 0xff;
        if (code != SQLITE_NOTADB && code != SQLITE_CORRUPT)
            throw;
        const bool tronque = QFileInfo(m_fichier).size() % taillePage != 0;
        if (tronque || code == SQLITE_CORRUPT)
            throw Erreur(Erreur::FichierEndommage,
                         u"Le fichier %1 est endommagé : il est incomplet."_qs.arg(m_fichier));
        throw Erreur(Erreur::MotDePasse,
                     u"Le fichier %1 ne s'ouvre pas avec le mot de passe du programme."_qs.arg(m_fichier));
    }
}

/// Reads every page once, so that damage shows at the start and not in the middle of a day.
void BaseNative::verifie()
{
    QString constat;
    try {
        constat = valeurUnique(u"pragma quick_check(1)"_qs).texte();
    } catch (const Erreur &erreur) {
        constat = erreur.phrase();
    }
    if (constat != u"ok")
        throw Erreur(Erreur::FichierEndommage, u"Le fichier %1 est endommagé."_qs.arg(m_fichier));
}

void BaseNative::ferme()
{
    for (sqlite3_stmt *stmt : std::as_const(m_libres))
        sqlite3_finalize(stmt);
    m_libres.clear();
    m_ecrivains.clear();
    m_anciennete.clear();
    if (!abandonne())
        sqlite3_close_v2(std::exchange(m_base, nullptr));
}

void BaseNative::executeScript(const QString &script)
{
    libereLectures();
    const int code = sqlite3_exec(m_base, script.toUtf8().constData(), nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        echoue(code);
}

void BaseNative::execute(const QString &sql)
{
    Instruction instruction(*this, sql);
    while (instruction.avance()) {}
}

Valeur BaseNative::valeurUnique(const QString &sql)
{
    Instruction instruction(*this, sql);
    return instruction.avance() ? instruction.valeur(0) : Valeur();
}

int BaseNative::changements() const
{
    return sqlite3_total_changes(m_base);
}

qint64 BaseNative::dernierRowid() const
{
    return sqlite3_last_insert_rowid(m_base);
}

bool BaseNative::horsTransaction() const
{
    return sqlite3_get_autocommit(m_base) != 0;
}

/// Makes ready for \p stmt, which is about to run, when it changes the file; whether a group has been opened for it
/// alone.
bool BaseNative::prepareEcriture(sqlite3_stmt *stmt)
{
    if (!m_ecrivains.contains(stmt) || sqlite3_stmt_busy(stmt) != 0)
        return false;
    libereLectures();
    return ouvreGeneration();
}

/// Hears from the engine, while a statement is prepared, of each thing that it will do: what writes into the file
/// itself is noted, memory tables aside.
int BaseNative::surveille(void *base, int acte, const char *, const char *, const char *fichier, const char *)
{
    const bool ecrit = acte == SQLITE_INSERT || acte == SQLITE_UPDATE || acte == SQLITE_DELETE;
    if (ecrit && qstrcmp(fichier, "main") == 0)
        static_cast<BaseNative *>(base)->m_prepareUneEcriture = true;
    return SQLITE_OK;
}

sqlite3_stmt *BaseNative::emprunte(const QString &sql)
{
    const auto libre = m_libres.constFind(sql);
    if (libre != m_libres.constEnd()) {
        sqlite3_stmt *stmt = *libre;
        m_libres.erase(libre);
        m_anciennete.removeOne(sql);
        return stmt;
    }
    sqlite3_stmt *stmt = nullptr;
    const void *reste = nullptr;
    m_prepareUneEcriture = false;
    const int code = sqlite3_prepare16_v2(m_base, sql.utf16(), int(sql.size() * 2), &stmt, &reste);
    if (code != SQLITE_OK)
        echoue(code);
    const qsizetype lu = static_cast<const char16_t *>(reste) - reinterpret_cast<const char16_t *>(sql.utf16());
    if (stmt == nullptr || !QStringView(sql).mid(lu).trimmed().isEmpty()) {
        sqlite3_finalize(stmt);
        throw Erreur(Erreur::Instruction, u"Une instruction et une seule est attendue : %1"_qs.arg(sql));
    }
    if (m_prepareUneEcriture)
        m_ecrivains.insert(stmt);
    return stmt;
}

void BaseNative::rend(const QString &sql, sqlite3_stmt *stmt)
{
    sqlite3_reset(stmt);
    sqlite3_clear_bindings(stmt);
    if (m_base == nullptr || m_libres.contains(sql)) {
        oublie(stmt);
        return;
    }
    m_libres.insert(sql, stmt);
    m_anciennete.append(sql);
    if (m_anciennete.size() > instructionsGardees)
        oublie(m_libres.take(m_anciennete.takeFirst()));
}

void BaseNative::oublie(sqlite3_stmt *stmt)
{
    m_ecrivains.remove(stmt);
    sqlite3_finalize(stmt);
}

void BaseNative::echoue(int code) const
{
    throw Erreur(code, phraseMoteur(code, QString::fromUtf8(sqlite3_errmsg(m_base))));
}

} // namespace store
