#include "fabrique.h"

#include "controle_langues.h"
#include "lecteur.h"
#include "partage/base.h"
#include "store/base_native.h"
#include "store/erreur.h"
#include "store/fichiers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSaveFile>

using store::BaseNative;
using store::Instruction;
using store::TypeChamp;
using store::Valeur;

namespace {

constexpr qint64 dernierMessage = 180;

/// Where the rows of a data file go.
struct Rangement
{
    QString table;
    /// Columns that tell one row from the others; two rows may not agree in all of them.
    QStringList cle;
    /// Columns that may not be empty, beside the key.
    QStringList obligatoires;
    /// Column that serves to read the data and is not stored.
    QString horsTable;
    /// Language of all the rows, for a table whose file does not repeat it.
    std::optional<qint64> langue;
};

/// A column of the file: its place there and its type in the table.
struct Colonne
{
    qsizetype place;
    QString nom;
    TypeChamp type;
};

Valeur valeurDe(const QString &texte, TypeChamp type)
{
    bool juste = true;
    Valeur valeur(texte);
    if (type == TypeChamp::Entier) {
        valeur = texte.toLongLong(&juste);
    } else if (type == TypeChamp::Reel) {
        valeur = texte.toDouble(&juste);
    } else if (type == TypeChamp::Booleen) {
        valeur = texte == u"oui";
        juste = texte == u"oui" || texte == u"non";
    } else if (type == TypeChamp::Date) {
        const QDate date = QDate::fromString(texte, Qt::ISODate);
        valeur = date;
        juste = date.isValid();
    }
    return juste ? valeur : Valeur();
}

QString attendu(TypeChamp type)
{
    switch (type) {
    case TypeChamp::Booleen:
        return u"oui ou non"_qs;
    case TypeChamp::Date:
        return u"une date aaaa-mm-jj"_qs;
    default:
        return u"un nombre"_qs;
    }
}

/// Puts the rows of one data file into its table.
class Remplissage
{
public:
    Remplissage(BaseNative &base, const FichierDonnees &fichier, const Rangement &rangement)
        : m_base(base)
        , m_fichier(fichier)
        , m_rangement(rangement)
    {
        reconnaitColonnes();
    }

    void execute()
    {
        Instruction ajout = prepare();
        for (const LigneDonnees &ligne : m_fichier.lignes) {
            refuseDoublon(ligne);
            int indice = 0;
            for (const Colonne &colonne : m_colonnes)
                ajout.lie(++indice, lit(ligne, colonne));
            if (m_rangement.langue)
                ajout.lie(++indice, *m_rangement.langue);
            ajout.avance();
        }
    }

private:
    void reconnaitColonnes()
    {
        const Instruction modele(m_base, u"select * from \"%1\""_qs.arg(m_rangement.table));
        for (qsizetype place = 0; place < m_fichier.colonnes.size(); ++place) {
            const QString &nom = m_fichier.colonnes[place];
            if (nom.compare(m_rangement.horsTable, Qt::CaseInsensitive) == 0)
                continue;
            int i = 0;
            while (i < modele.colonnes() && modele.nomColonne(i).compare(nom, Qt::CaseInsensitive) != 0)
                ++i;
            if (i == modele.colonnes())
                echoue(m_fichier.ligneEntete, u"la table %1 n'a pas de colonne « %2 »"_qs.arg(m_rangement.table, nom));
            m_colonnes.append({place, nom, modele.typeColonne(i)});
        }
        for (const QString &nom : m_rangement.cle + m_rangement.obligatoires) {
            if (m_fichier.place(nom) < 0)
                echoue(m_fichier.ligneEntete, u"la colonne « %1 » manque"_qs.arg(nom));
        }
    }

    Instruction prepare()
    {
        QStringList noms;
        for (const Colonne &colonne : std::as_const(m_colonnes))
            noms.append(u'"' + colonne.nom + u'"');
        if (m_rangement.langue)
            noms.append(u"lang"_qs);
        const QStringList places(noms.size(), u"?"_qs);
        return Instruction(m_base,
                           u"insert into \"%1\" (%2) values (%3)"_qs.arg(m_rangement.table, noms.join(u", "),
                                                                         places.join(u", ")));
    }

    Valeur lit(const LigneDonnees &ligne, const Colonne &colonne) const
    {
        const std::optional<QString> &champ = ligne.champs[colonne.place];
        if (!champ) {
            if ((m_rangement.cle + m_rangement.obligatoires).contains(colonne.nom, Qt::CaseInsensitive))
                echoue(ligne.numero, u"la colonne « %1 » est vide"_qs.arg(colonne.nom));
            return {};
        }
        Valeur valeur = valeurDe(*champ, colonne.type);
        if (valeur.estNull())
            echoue(ligne.numero,
                   u"« %1 » n'est pas %2 (colonne « %3 »)"_qs.arg(*champ, attendu(colonne.type), colonne.nom));
        if (m_rangement.table == u"langues" && colonne.nom.compare(u"num", Qt::CaseInsensitive) == 0
            && (valeur.entier() < 0 || valeur.entier() > dernierMessage))
            echoue(ligne.numero, u"le message %1 n'est pas entre 0 et %2"_qs.arg(*champ).arg(dernierMessage));
        return valeur;
    }

    void refuseDoublon(const LigneDonnees &ligne)
    {
        QStringList valeurs;
        for (const Colonne &colonne : std::as_const(m_colonnes)) {
            if (m_rangement.cle.contains(colonne.nom, Qt::CaseInsensitive))
                valeurs.append(lit(ligne, colonne).texte().toCaseFolded());
        }
        int &premiere = m_dejaLues[valeurs];
        if (premiere > 0)
            echoue(ligne.numero, u"« %1 » est déjà à la ligne %2"_qs.arg(valeurs.join(u" ")).arg(premiere));
        premiere = ligne.numero;
    }

    [[noreturn]] void echoue(int ligne, const QString &constat) const
    {
        throw ErreurDonnees(m_fichier.nom, ligne, constat);
    }

    BaseNative &m_base;
    const FichierDonnees &m_fichier;
    const Rangement &m_rangement;
    QList<Colonne> m_colonnes;
    QHash<QStringList, int> m_dejaLues;
};

void remplit(BaseNative &base, const QDir &dossier, const QString &nom, const Rangement &rangement)
{
    const FichierDonnees fichier = litFichier(dossier.filePath(nom));
    Remplissage(base, fichier, rangement).execute();
}

void creeTables(BaseNative &base, const QDir &dossier)
{
    const QString script = litTexte(dossier.filePath(u"schema.sql"_qs));
    try {
        base.executeScript(script);
    } catch (const store::Erreur &erreur) {
        throw ErreurDonnees(u"schema.sql"_qs, 0, erreur.phrase());
    }
}

/// Languages and their messages: one language is active, and all hold the same messages.
void remplitLangues(BaseNative &base, const QDir &dossier)
{
    const QString nom = u"langues.txt"_qs;
    const FichierDonnees langues = litFichier(dossier.filePath(nom));
    Remplissage(base, langues, {u"traduc"_qs, {u"numero"_qs}, {u"designation"_qs, u"actif"_qs}, u"code"_qs, {}})
        .execute();
    if (base.valeurUnique(u"select count(*) from traduc where actif"_qs).entier() != 1)
        throw ErreurDonnees(nom, 0, u"une langue et une seule doit être active"_qs);

    const qsizetype placeCode = langues.place(u"code");
    const qsizetype placeNumero = langues.place(u"numero");
    if (placeCode < 0)
        throw ErreurDonnees(nom, langues.ligneEntete, u"la colonne « code » manque"_qs);
    QStringList presents = dossier.entryList({u"messages.*.txt"_qs}, QDir::Files);
    std::optional<FichierDonnees> reference;
    for (const LigneDonnees &ligne : langues.lignes) {
        if (!ligne.champs[placeCode])
            throw ErreurDonnees(nom, ligne.numero, u"la colonne « code » est vide"_qs);
        const FichierDonnees messages =
            litFichier(dossier.filePath(u"messages.%1.txt"_qs.arg(*ligne.champs[placeCode])));
        presents.removeAll(messages.nom);
        Remplissage(base, messages,
                    {u"langues"_qs, {u"num"_qs}, {u"mes"_qs}, {}, ligne.champs[placeNumero]->toLongLong()})
            .execute();
        if (!reference)
            reference = messages;
        controleMessages(messages, *reference);
    }
    if (!presents.isEmpty())
        throw ErreurDonnees(presents.first(), 0, u"aucune langue de %1 n'a ce code"_qs.arg(nom));
}

/// The tables whose rows come once for each language.
void remplitTout(BaseNative &base, const QDir &dossier)
{
    remplitLangues(base, dossier);
    remplit(base, dossier, u"typconcours.txt"_qs,
            {u"typconcours"_qs, {u"lang"_qs, u"type"_qs}, {u"Libelle"_qs, u"Nbjoueurs"_qs}, {}, {}});
    remplit(base, dossier, u"categories.txt"_qs, {u"catégories"_qs, {u"lang"_qs, u"Libelle"_qs}, {}, {}, {}});
}

void ecrit(const QDir &dossier, const QString &fichier)
{
    BaseNative base(fichier, motDePasseBase, BaseNative::Mode::Creation);
    base.execute(u"begin"_qs);
    creeTables(base, dossier);
    remplitTout(base, dossier);
    remplit(base, dossier, u"clubs.txt"_qs, {u"societes"_qs, {u"societe"_qs}, {u"codesoc"_qs}, {}, {}});
    base.execute(u"commit"_qs);
    // The program works in this mode: set here, its first start leaves the file as it is.
    base.executeScript(u"pragma journal_mode = wal"_qs);
}

/// The statements that make the indexes and triggers of \p base where they are missing.
QStringList indexAbsents(BaseNative &base)
{
    QStringList script;
    Instruction lecture(base,
                        u"select sql from sqlite_master where type in ('index', 'trigger') and sql is not null "
                        u"order by rowid"_qs);
    while (lecture.avance()) {
        const QString sql = lecture.valeur(0).texte().simplified();
        for (const QString &debut : {u"create unique index"_qs, u"create index"_qs, u"create trigger"_qs}) {
            if (sql.startsWith(debut, Qt::CaseInsensitive))
                script += debut + u" if not exists"_qs + sql.mid(debut.size());
        }
    }
    return script;
}

/// The statement that adds the rows of \p table for which \p manque holds.
QString absents(BaseNative &base, const QString &table, const QStringList &champs, const QString &manque)
{
    const QString liste = champs.join(u", "_qs);
    const QString lignes = base.valeurUnique(u"select group_concat('(' || quote(%1) || ')', ', ') from %2"_qs
                                                 .arg(champs.join(u") || ', ' || quote("_qs), table))
                               .texte();
    return u"with originaux(%1) as (values %2) insert into %3 (%1) select %1 from originaux where %4"_qs.arg(liste,
                                                                                                             lignes,
                                                                                                             table,
                                                                                                             manque);
}

void efface(const QString &fichier)
{
    for (const QString &fin : {QString(), u"-journal"_qs, u"-wal"_qs, u"-shm"_qs})
        QFile::remove(fichier + fin);
}

} // namespace

void creeBase(const QString &dossier, const QString &cible)
{
    const QString provisoire = cible + u".nouveau"_qs;
    efface(provisoire);
    try {
        ecrit(QDir(dossier), provisoire);
        if (QFileInfo::exists(cible + u"-wal"_qs))
            throw ErreurDonnees(cible, 0, u"la base est ouverte ou a été mal refermée"_qs);
        if (!store::renomme(provisoire, cible))
            throw ErreurDonnees(cible, 0, u"écriture impossible"_qs);
    } catch (...) {
        efface(provisoire);
        throw;
    }
}

void ecritComplement(const QString &dossier, const QString &cible)
{
    BaseNative base(u":memory:"_qs, motDePasseBase, BaseNative::Mode::Creation);
    creeTables(base, dossier);
    remplitTout(base, dossier);
    QStringList script = indexAbsents(base);
    script += {
        // A base has chosen its active language, unless it has no language at all.
        absents(base, u"traduc"_qs, {u"numero"_qs, u"traducteur"_qs, u"icone"_qs, u"designation"_qs, u"actif"_qs},
                u"numero not in (select numero from traduc)"_qs)
            .replace(u", actif from"_qs, u", case when exists (select 1 from traduc) then 0 else actif end from"_qs),
        absents(base, u"langues"_qs, {u"lang"_qs, u"num"_qs, u"mes"_qs},
                u"lang * 1000 + num not in (select lang * 1000 + num from langues)"_qs),
        absents(base, u"typconcours"_qs, {u"lang"_qs, u"type"_qs, u"Libelle"_qs, u"Nbjoueurs"_qs},
                u"lang not in (select lang from typconcours)"_qs),
        absents(base, u"catégories"_qs, {u"lang"_qs, u"Libelle"_qs}, u"lang not in (select lang from catégories)"_qs),
    };
    QSaveFile fichier(cible);
    const QByteArray octets = script.join(u'\n').toUtf8();
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(octets) != octets.size() || !fichier.commit())
        throw ErreurDonnees(cible, 0, u"écriture impossible (%1)"_qs.arg(fichier.errorString()));
}
