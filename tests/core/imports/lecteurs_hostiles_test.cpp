#include "commun/affiche.h"
#include "imports/lecteur_delimite.h"
#include "imports/lecteur_lignes.h"

#include <gtest/gtest.h>

#include <QBuffer>

#include <random>
#include <tuple>

using namespace recu;

// Files that nobody would call a list, and lists that are written in every way a program may write them.

namespace {

constexpr qint64 gigaoctet = 1024 * 1024 * 1024;

/// A gigabyte of one motif behind a beginning, which nobody has to store.
class FichierSansFin : public QIODevice
{
public:
    FichierSansFin(const QByteArray &debut, const QByteArray &motif)
        : m_debut(debut)
        , m_motif(motif)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    bool isSequential() const override { return true; }
    qint64 donnes() const { return m_donnes; }

protected:
    qint64 readData(char *octets, qint64 place) override
    {
        const qint64 nombre = std::min(place, gigaoctet - m_donnes);
        for (qint64 i = 0; i < nombre; ++i, ++m_donnes)
            octets[i] = m_donnes < m_debut.size() ? m_debut[m_donnes] : m_motif[m_donnes % m_motif.size()];
        return nombre;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray m_debut;
    QByteArray m_motif;
    qint64 m_donnes = 0;
};

/// Bytes that a reader stumbles over more often than chance would have it.
QByteArray octetsHostiles(std::mt19937 &hasard, int taille)
{
    static const QByteArray pieges("\";|,\t\r\n\xEF\xBB\xBF\xC3\xA9\xE9\xFF\xED\xA0\x80\x1A 'A0");
    QByteArray octets;
    while (octets.size() < taille)
        octets += hasard() % 4 != 0 ? pieges[hasard() % std::size_t(pieges.size())] : char(1 + hasard() % 255);
    return octets;
}

/// What the text of such bytes can be at most: a character a byte.
void litToutDesDeux(QByteArray octets)
{
    QBuffer source(&octets);
    source.open(QIODevice::ReadOnly);
    qsizetype caracteres = 0;
    try {
        LecteurLignes lignes(source);
        while (const std::optional<QString> ligne = lignes.suivante())
            caracteres += ligne->size();
    } catch (const ErreurLecture &erreur) {
        EXPECT_FALSE(erreur.phrase().isEmpty());
    }
    EXPECT_LE(caracteres, octets.size());
    source.seek(0);
    caracteres = 0;
    try {
        LecteurDelimite lecteur(source);
        while (lecteur.avance()) {
            for (std::size_t i = 0; i < std::size_t(lecteur.colonnes().size()); ++i)
                caracteres += lecteur.champ(i).size();
        }
    } catch (const ErreurLecture &erreur) {
        EXPECT_FALSE(erreur.phrase().isEmpty());
    }
    EXPECT_LE(caracteres, octets.size());
}

/// One way of writing a list.
struct Ecriture
{
    char separateur;
    QByteArray finDeLigne;
    bool utf8;
    bool marque;

    QByteArray champ(const QString &texte, std::mt19937 &hasard) const
    {
        QByteArray octets = utf8 ? texte.toUtf8() : texte.toLatin1();
        const bool entoure = octets.startsWith('"') || octets.contains(separateur) || octets.contains('\n')
            || octets.contains('\r') || hasard() % 3 == 0;
        return entoure ? '"' + octets.replace("\"", "\"\"") + '"' : octets;
    }
};

QString texteAuHasard(std::mt19937 &hasard)
{
    static const QString signes = u"aB7;,\t|\"'\n éÉçñï-x"_qs;
    QString texte = u"n"_qs;
    for (auto reste = hasard() % 12; reste > 0; --reste)
        texte += signes[qsizetype(hasard() % std::size_t(signes.size()))];
    return texte + u'.';
}

} // namespace

TEST(FichiersHostiles, AnyBytesAreReadToTheirEndOrRefused)
{
    std::mt19937 hasard(20260503);
    for (int fois = 0; fois < 3000; ++fois)
        litToutDesDeux(octetsHostiles(hasard, 1 + int(hasard() % 600)));
    for (int fois = 0; fois < 10; ++fois)
        litToutDesDeux(octetsHostiles(hasard, 200'000));
}

TEST(FichiersHostiles, ListsComeBackAsTheyWereWritten)
{
    std::mt19937 hasard(7);
    for (int fois = 0; fois < 400; ++fois) {
        const Ecriture e{"; \t,|" [std::array{0, 2, 3, 4}[hasard() % 4]],
                         std::array { "\n", "\r\n", "\r" }[hasard() % 3], hasard() % 2 == 0, hasard() % 2 == 0};
        const std::size_t colonnes = 2 + hasard() % 5;
        QByteArray octets = e.utf8 && e.marque ? QByteArray("\xEF\xBB\xBF") : QByteArray();
        for (std::size_t i = 0; i < colonnes; ++i)
            octets += (i > 0 ? QByteArray(1, e.separateur) : QByteArray()) + "titre";
        std::vector<QStringList> ecrites;
        for (auto reste = hasard() % 20; reste > 0; --reste) {
            QStringList rangee;
            for (std::size_t i = 0; i < colonnes; ++i) {
                rangee += texteAuHasard(hasard);
                octets += (i > 0 ? QByteArray(1, e.separateur) : e.finDeLigne) + e.champ(rangee.last(), hasard);
            }
            ecrites.push_back(rangee);
        }
        QBuffer source(&octets);
        source.open(QIODevice::ReadOnly);
        LecteurDelimite lecteur(source);
        ASSERT_EQ(lecteur.colonnes().size(), qsizetype(colonnes));
        for (const QStringList &rangee : ecrites) {
            ASSERT_TRUE(lecteur.avance());
            for (std::size_t i = 0; i < colonnes; ++i)
                EXPECT_EQ(lecteur.champ(i), rangee[qsizetype(i)]) << octets.toStdString();
        }
        EXPECT_FALSE(lecteur.avance());
    }
}

TEST(FichiersHostiles, AGigabyteWithoutEndIsLeftAtTheFirstBlocks)
{
    static constexpr qint64 lectureMax = 1024 * 1024;
    const auto refuse = [](const char *debut, const char *motif, auto lit) {
        FichierSansFin fichier(debut, motif);
        EXPECT_THROW(lit(fichier), ErreurLecture) << debut << motif;
        EXPECT_LT(fichier.donnes(), lectureMax) << debut << motif;
    };
    for (const char *motif : {"x", "|", "\xC3\xA9", "\""}) {
        refuse("", motif, [](QIODevice &fichier) { std::ignore = LecteurLignes(fichier).suivante(); });
        refuse("", motif, [](QIODevice &fichier) { LecteurDelimite lecteur(fichier); });
    }
    for (const char *motif : {"x", ";", "\"", "\n\"\""})
        refuse("nom;prenom\n\"", motif, [](QIODevice &fichier) { std::ignore = LecteurDelimite(fichier).avance(); });
}
