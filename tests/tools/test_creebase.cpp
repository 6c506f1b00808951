// What creebase refuses in the readable rows, and what it leaves behind when it does.

#include "commun/fichiers_essai.h"
#include "fabrique.h"
#include "lecteur.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class Creebase : public testing::Test
{
protected:
    void SetUp() override
    {
        QDir(m_racine.path()).mkdir(u"data"_qs);
        const QDir source(QStringLiteral(DOSSIER_DONNEES));
        for (const QString &nom : source.entryList({u"*.txt"_qs, u"*.sql"_qs}, QDir::Files))
            ASSERT_TRUE(QFile::copy(source.filePath(nom), m_donnees.filePath(nom)));
    }

    void ecrit(const QString &nom, const QByteArray &texte) { ecritFichier(m_donnees.filePath(nom), texte); }

    /// Sentence of the refusal, empty when the base was made.
    QString refus()
    {
        try {
            creeBase(m_donnees.path(), m_cible);
        } catch (const ErreurDonnees &erreur) {
            return erreur.phrase();
        }
        return {};
    }

    QTemporaryDir m_racine;
    QDir m_donnees{m_racine.filePath(u"data"_qs)};
    QString m_cible = m_racine.filePath(u"VarloBase.mdb"_qs);
};

} // namespace

TEST_F(Creebase, MontreLaLigneFautive)
{
    struct Cas
    {
        const char *fichier, *texte, *debut, *constat;
    };
    const Cas cas[] = {
        {"clubs.txt", "societe\tcodesoc\tville\n", "clubs.txt:1 ", "« ville »"},
        {"clubs.txt", "# c\nsociete\tcodesoc\nA\tun\n", "clubs.txt:3 ", "« un » n'est pas un nombre"},
        {"clubs.txt", "societe\tcodesoc\nA\t1\t2\n", "clubs.txt:2 ", "3 colonne(s) au lieu de 2"},
        {"clubs.txt", "societe\tcodesoc\nA\t1\n\n# c\na\t2\n", "clubs.txt:5 ", "déjà à la ligne 2"},
        {"clubs.txt", "societe\tcodesoc\n\t1\n", "clubs.txt:2 ", "« societe » est vide"},
        {"clubs.txt", "societe\nA\n", "clubs.txt:1 ", "« codesoc » manque"},
        {"clubs.txt", "societe\tcodesoc\n\"A\t1\n", "clubs.txt:2 ", "guillemet"},
        {"clubs.txt", "# rien\n", "clubs.txt ", "colonnes"},
        {"clubs.txt", "societe\tcodesoc\n\xe9\t1\n", "clubs.txt ", "UTF-8"},
        {"messages.fr.txt", "num\tmes\n180\tdernier\n181\ttrop\n", "messages.fr.txt:3 ", "181"},
        {"messages.fr.txt", "num\tmes\n-1\ttrop\n", "messages.fr.txt:2 ", "-1"},
        {"messages.fr.txt", "num\tmes\n4\ta\n04\tb\n", "messages.fr.txt:3 ", "déjà à la ligne 2"},
        {"messages.fr.txt", "num\tmes\n4\t\n", "messages.fr.txt:2 ", "« mes » est vide"},
        {"messages.xx.txt", "num\tmes\n", "messages.xx.txt ", "langue"},
        {"langues.txt", "numero\tcode\tdesignation\tactif\n1\tfr\tF\tvrai\n", "langues.txt:2 ", "oui ou non"},
        {"langues.txt", "numero\tcode\tdesignation\tactif\n1\tfr\tF\tnon\n", "langues.txt ", "active"},
        {"langues.txt", "numero\tcode\tdesignation\tactif\n1\tfr\tF\toui\n2\ten\tE\toui\n", "langues.txt ", "active"},
        {"langues.txt", "numero\tcode\tdesignation\tactif\n1\txx\tX\toui\n", "messages.xx.txt ", ""},
        {"schema.sql", "create tabel x (y);", "schema.sql ", "tabel"},
    };
    for (const Cas &c : cas) {
        SCOPED_TRACE(c.texte);
        const QString nom = QString::fromUtf8(c.fichier);
        const QByteArray avant = octetsDe(m_donnees.filePath(nom));
        ecrit(nom, c.texte);
        const QString phrase = refus();
        EXPECT_TRUE(phrase.startsWith(QString::fromUtf8(c.debut))) << qPrintable(phrase);
        EXPECT_TRUE(phrase.contains(QString::fromUtf8(c.constat))) << qPrintable(phrase);
        if (avant.isEmpty())
            m_donnees.remove(nom);
        else
            ecrit(nom, avant);
    }
}

TEST_F(Creebase, ToutesLesLanguesDisentLesMemesMessages)
{
    struct Cas
    {
        const char *ancien, *nouveau, *constat;
    };
    const Cas cas[] = {
        {"\n49\t", "\n# 49\t", "le message 49 manque"},
        {"\n49\t", "\n48\t\"x\"\n49\t", "le message 48 n'est pas dans messages.fr.txt"},
        {"\n49\t\"", "\n49\t\" ", "le message 49 n'a pas les espaces"},
        {"\n95\t\"Competition saved under the number ", "\n95\t\"Saved under", "le message 95 n'a pas les espaces"},
        {"\n24\t\"", "\n24\t\"Team number one of them all", "le message 24 a plus de 22"},
        {"\"Retired\"", "\"FORFEIT\"", "le message 44 est aussi le message 43"},
        {"\n64\t\"Tour 1\"", "\n64\t\"Round 1\"", "le message 64 est le même"},
        {"dd/mm/yyyy", "mm/dd/yyyy", "le message 117 n'est pas un format"},
        {"en_GB", "english", "le message 128 n'est pas une langue"},
    };
    const QString nom = u"messages.en.txt"_qs;
    const QByteArray juste = octetsDe(m_donnees.filePath(nom));
    for (const Cas &c : cas) {
        SCOPED_TRACE(c.constat);
        QByteArray faux = juste;
        ASSERT_TRUE(faux.contains(c.ancien));
        ecrit(nom, faux.replace(c.ancien, c.nouveau));
        const QString phrase = refus();
        EXPECT_TRUE(phrase.contains(QString::fromUtf8(c.constat))) << qPrintable(phrase);
    }
}

TEST_F(Creebase, UnRefusNeLaisseRienEtGardeLAncienneBase)
{
    ecrit(u"clubs.txt"_qs, "societe\tcodesoc\nA\tun\n");
    EXPECT_FALSE(refus().isEmpty());
    EXPECT_EQ(QDir(m_racine.path()).entryList(QDir::Files), QStringList());

    ecritFichier(m_cible, "ancienne");
    EXPECT_FALSE(refus().isEmpty());
    EXPECT_EQ(octetsDe(m_cible), "ancienne");
    EXPECT_EQ(QDir(m_racine.path()).entryList(QDir::Files), QStringList{u"VarloBase.mdb"_qs});

    ecrit(u"clubs.txt"_qs, "societe\tcodesoc\nA\t1\n");
    EXPECT_EQ(refus(), QString());
    EXPECT_GT(octetsDe(m_cible).size(), 1000);
    EXPECT_EQ(QDir(m_racine.path()).entryList(QDir::Files), QStringList{u"VarloBase.mdb"_qs});
}

TEST_F(Creebase, UneBaseOuverteNEstPasRemplacee)
{
    ASSERT_EQ(refus(), QString());
    const QByteArray avant = octetsDe(m_cible);
    ecritFichier(m_cible + u"-wal"_qs, {});
    EXPECT_TRUE(refus().contains(u"ouverte"_qs));
    EXPECT_EQ(octetsDe(m_cible), avant);
}

TEST(Lecteur, GardeLesBlancsEntreGuillemetsEtPasseLesCommentaires)
{
    const QTemporaryDir dossier;
    const QString chemin = dossier.filePath(u"x.txt"_qs);
    ecritFichier(chemin,
                 "# tête\r\na\tb\tc\r\n  1 \t\" un \"\"mot\"\" \"\t\t# note\t\"\r\n\r\n\"# pas une note\"\t\t\"\"\n");
    const FichierDonnees lu = litFichier(chemin);
    EXPECT_EQ(lu.colonnes, (QStringList{u"a"_qs, u"b"_qs, u"c"_qs}));
    ASSERT_EQ(lu.lignes.size(), 2);
    EXPECT_EQ(lu.lignes[0].numero, 3);
    using Champs = QList<std::optional<QString>>;
    EXPECT_EQ(lu.lignes[0].champs, (Champs{u"1"_qs, u" un \"mot\" "_qs, std::nullopt}));
    EXPECT_EQ(lu.lignes[1].champs, (Champs{u"# pas une note"_qs, std::nullopt, QString()}));
}
