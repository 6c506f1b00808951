#include "commun/affiche.h"
#include "imports/lecteur_delimite.h"
#include "imports/lecteur_lignes.h"

#include <gtest/gtest.h>

#include <QBuffer>

using namespace recu;

namespace {

QStringList lignesDe(QByteArray octets)
{
    QBuffer source(&octets);
    source.open(QIODevice::ReadOnly);
    LecteurLignes lecteur(source);
    QStringList lignes;
    while (const std::optional<QString> ligne = lecteur.suivante()) {
        lignes += *ligne;
        EXPECT_EQ(lecteur.numero(), lignes.size());
    }
    return lignes;
}

/// Names and rows of a delimited text, the fields of each joined by "/".
QStringList rangeesDe(QByteArray octets)
{
    QBuffer source(&octets);
    source.open(QIODevice::ReadOnly);
    LecteurDelimite lecteur(source);
    QStringList rangees{lecteur.colonnes().join(u'/')};
    while (lecteur.avance()) {
        QStringList champs;
        for (qsizetype i = 0; i < lecteur.colonnes().size(); ++i)
            champs += lecteur.champ(std::size_t(i));
        rangees += champs.join(u'/');
    }
    return rangees;
}

} // namespace

TEST(LecteurLignes, EveryLineEndAndBothEncodings)
{
    EXPECT_EQ(lignesDe(""), QStringList());
    EXPECT_EQ(lignesDe("a\nb\r\nc\rd"), QStringList({u"a"_qs, u"b"_qs, u"c"_qs, u"d"_qs}));
    EXPECT_EQ(lignesDe("a\r\n\r\nb\n"), QStringList({u"a"_qs, u""_qs, u"b"_qs}));
    EXPECT_EQ(lignesDe("\n \na\n\n\t\r\n\n"), QStringList({u""_qs, u""_qs, u"a"_qs}))
        << "blank lines at the end are none";
    EXPECT_EQ(lignesDe("\xEF\xBB\xBFZo\xC3\xA9\n"), QStringList({u"Zoé"_qs}));
    EXPECT_EQ(lignesDe("\xEF\xBB\xBF"), QStringList());
    // One line in each: 0x9C and 0x80 stand for signs that Latin-1 does not have.
    EXPECT_EQ(lignesDe("Zo\xE9 \x9Cuvre 5 \x80\nZo\xC3\xA9"), QStringList({u"Zoé œuvre 5 €"_qs, u"Zoé"_qs}));
}

TEST(LecteurLignes, ALineEndOnTheEdgeOfABlockIsOne)
{
    const QByteArray longue(64 * 1024 - 1, 'x');
    EXPECT_EQ(lignesDe(longue + "\r\nfin").size(), 2);
    EXPECT_THROW(lignesDe(longue + "xx\n"), ErreurLecture);
    EXPECT_THROW(lignesDe(QByteArray("a\0b", 3)), ErreurLecture);
}

TEST(LecteurDelimite, SeparatorOfTheFirstLine)
{
    const QStringList attendu{u"Nom/Licence"_qs, u"ROUX/1"_qs};
    EXPECT_EQ(rangeesDe("Nom;Licence\nROUX;1\n"), attendu);
    EXPECT_EQ(rangeesDe("Nom\tLicence\r\nROUX\t1"), attendu);
    EXPECT_EQ(rangeesDe("Nom,Licence\rROUX,1\r"), attendu);
    EXPECT_EQ(rangeesDe("Nom|Licence\nROUX|1\n"), attendu);
    EXPECT_EQ(rangeesDe("\r\n \r\n\"Nom\";\"Licence\"\n\n;\nROUX;1;de trop\n\n"), attendu);
    EXPECT_EQ(rangeesDe("\"a,b,c\";d\n1;2"), QStringList({u"a,b,c/d"_qs, u"1/2"_qs}));
    EXPECT_EQ(rangeesDe("Nom;Licence\nROUX\n"), QStringList({u"Nom/Licence"_qs, u"ROUX/"_qs}));
    EXPECT_THROW(rangeesDe("\n \n"), ErreurLecture);
}

TEST(LecteurDelimite, Quotes)
{
    EXPECT_EQ(rangeesDe("a;b\n\"x;\"\"y\"\"\";\" deux\r\nlignes \"\n"),
              QStringList({u"a/b"_qs, u"x;\"y\"/deux\r\nlignes"_qs}));
    // A quote inside a field that does not begin with one is a sign like any other.
    EXPECT_EQ(rangeesDe("a;b\nClub \"Or\";\"\"\n"), QStringList({u"a/b"_qs, u"Club \"Or\"/"_qs}));
    EXPECT_THROW(rangeesDe("a;b\n\"jamais fermé;1\n"), ErreurLecture);
}
