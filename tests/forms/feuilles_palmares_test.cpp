#include "palmares_essai.h"

#include "papier/destinations.h"
#include "printing/imprime_detail.h"

#include <QPageSize>
#include <QProcess>
#include <QRegularExpression>
#include <QtPrintSupport/QPrinter>

namespace {

/// Where a sheet puts a row, in twips, and its letters in points.
struct Mise
{
    bool detail = false;
    bool paysage = false;
    int gaucheTour = 14;
    int margeScore = 1200;
    double taille = 14;

    int largeur() const { return paysage ? hauteurPapier : largeurPapier; }
    int hauteurUtile() const { return (paysage ? largeurPapier : hauteurPapier) - 480; }
    int limite() const { return hauteurUtile() - 2000; }
};

class FeuillesPalmares : public PalmaresEssai
{
protected:
    void verifie(const Mise &mise);
    void verifiePage(const PageDessinee &page, const Mise &mise, bool derniere);
    static void verifieEntete(const PageDessinee &page, const Mise &mise);
    std::vector<Dessin> corps(const PageDessinee &page, const Mise &mise) const;

    int m_ligne = 0; ///< Row of the grid that comes next on paper.
};

/// Everything between the head and the footer.
std::vector<Dessin> FeuillesPalmares::corps(const PageDessinee &page, const Mise &mise) const
{
    std::vector<Dessin> textes;
    for (const Dessin &dessin : page.dessins) {
        const bool tete = dessin.taille >= 18 || dessin.y1 == 300;
        if (!tete && dessin.y1 != mise.hauteurUtile() - 1500)
            textes.push_back(dessin);
    }
    return textes;
}

void FeuillesPalmares::verifieEntete(const PageDessinee &page, const Mise &mise)
{
    const double taille = mise.detail ? 14 : 18;
    const Dessin *date = trouve(page, u"14/07/2026"_qs);
    const Dessin *categorie = trouve(page, u"Doublettes"_qs);
    ASSERT_TRUE(date != nullptr && categorie != nullptr);
    EXPECT_TRUE(date->x1 == 400 && date->y1 == 300 && date->taille == taille && !date->gras);
    EXPECT_TRUE(categorie->x1 == mise.largeur() - 4500 && categorie->y1 == 300);
    const Dessin *titre = trouve(page, u"Liste des équipes"_qs);
    ASSERT_EQ(titre != nullptr, mise.detail);
    if (mise.detail) {
        EXPECT_TRUE(titre->x1 == 4000 && titre->taille == 18 && titre->gras);
    }
}

/// Follows the rows down a page from what the grid says, and tells where the page had to end.
void FeuillesPalmares::verifiePage(const PageDessinee &page, const Mise &mise, bool derniere)
{
    verifieEntete(page, mise);
    const std::vector<Dessin> textes = corps(page, mise);
    // Rows that fill their last page leave an empty one behind them.
    ASSERT_TRUE(!textes.empty() || (derniere && m_ligne == grille().Rows()));
    int y = 0;
    for (std::size_t i = 0; i < textes.size(); ++m_ligne) {
        ASSERT_LE(y, mise.limite()) << "row " << m_ligne << " belongs on the next page";
        const QString tour = grille().TextMatrix(m_ligne, 0);
        int avant = 50;
        if (!tour.isEmpty()) {
            EXPECT_TRUE(textes[i].texte == tour && textes[i].gras && textes[i].x1 == mise.gaucheTour);
            EXPECT_TRUE(y == 0 || textes[i].y1 == y + 200);
            avant = mise.detail ? 0 : 200;
            if (mise.detail)
                y = textes[i].y2;
            ++i;
        }
        ASSERT_LT(i, textes.size());
        const Dessin &phrase = textes[i++];
        EXPECT_TRUE(phrase.texte == grille().TextMatrix(m_ligne, 1) && !phrase.gras && phrase.taille == mise.taille);
        if (tour.isEmpty() || mise.detail)
            EXPECT_EQ(phrase.x1, 300);
        else
            EXPECT_GE(phrase.x1, textes[i - 2].x2) << "the name of the round must stay legible";
        EXPECT_TRUE(y == 0 || phrase.y1 == y + avant) << "row " << m_ligne;
        if (const QString score = grille().TextMatrix(m_ligne, 2); !score.isEmpty()) {
            ASSERT_LT(i, textes.size());
            EXPECT_TRUE(textes[i].texte == score && textes[i].y1 == phrase.y1);
            EXPECT_EQ(textes[i++].x2, mise.largeur() - mise.margeScore);
        }
        y = phrase.y2;
    }
    if (!derniere) {
        EXPECT_GT(y, mise.limite() - (mise.detail ? 300 : 0)) << "the page ends too early";
    }
}

void FeuillesPalmares::verifie(const Mise &mise)
{
    const int lignes = grille().Rows();
    choisit(0, lignes - 1);
    const Pages pages = imprime(mise.detail, mise.paysage);
    ASSERT_GE(pages.size(), 3u);
    EXPECT_EQ(grille().RowSel(), 0);
    m_ligne = 1;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(pages[i].orientation, mise.paysage ? Orientation::Paysage : Orientation::Portrait);
        verifiePage(pages[i], mise, i + 1 == pages.size());
        const Dessin *pied = trouve(pages[i], u"Page %1"_qs.arg(i + 1));
        ASSERT_NE(pied, nullptr);
        EXPECT_TRUE(pied->y1 == mise.hauteurUtile() - 1500 && pied->x1 == mise.largeur() - 480 - 2200);
        EXPECT_TRUE(pied->taille == 10 && !pied->gras);
        VerifiePlaces(pages[i], mise.largeur() - 240, mise.hauteurUtile() - 1500);
    }
    EXPECT_EQ(m_ligne, lignes);
}

TEST_F(FeuillesPalmares, BothSheetsPutEveryRowInItsPlaceAndBreakPagesInTime)
{
    ouvre(37, tours(37, 5));
    for (const bool paysage : {false, true}) {
        SCOPED_TRACE(paysage);
        verifie({.paysage = paysage});
        verifie({.detail = true, .paysage = paysage, .gaucheTour = 150, .margeScore = 800, .taille = 12});
    }
}

TEST_F(FeuillesPalmares, ASelectionPrintsItsRowsWhicheverWayItWasMade)
{
    ouvre(9, tours(9, 2));
    const QString attendue = grille().TextMatrix(3, 1) + grille().TextMatrix(4, 1);
    for (const auto &[debut, fin] : {std::pair(3, 4), std::pair(4, 3)}) {
        choisit(debut, fin);
        const Pages pages = imprime(false, false);
        ASSERT_EQ(pages.size(), 1u);
        EXPECT_EQ(rangeesA(pages[0], {300}).join(QString()), attendue);
    }
}

TEST_F(FeuillesPalmares, LongTextsOfTheHeadAndTheListStayApart)
{
    ouvre(5, tours(5, 1));
    partage().LieuConcours = lieuLong;
    partage().CategorieConcours = categorieLongue;
    abime(u"update equipes set equipe = equipe + 9000, nom = nom || nom || nom || nom || nom || nom, "
          "societe = 'Les Amis réunis du Cochonnet et de la Boule ferrée de Saint-Raphaël' || societe"_qs);
    ASSERT_TRUE(ImprimeDetail({partage(), formulaires(), boites}));
    std::vector<Pages> feuilles = std::exchange(documents, {});
    for (const bool detail : {false, true}) {
        choisit(1, 3);
        feuilles.push_back(imprime(detail, false));
    }
    for (const Pages &pages : feuilles) {
        ASSERT_EQ(pages.size(), 1u);
        VerifiePlaces(pages[0], largeurPapier - 480, hauteurPapier - 480 - 1500);
        EXPECT_TRUE(texteDe(pages[0]).contains(lieuLong + u"|Doublettes|"_qs + categorieLongue));
    }
}

TEST_F(FeuillesPalmares, ALongSentenceGetsSmallerLettersBeforeItRunsIntoTheScore)
{
    ouvre(4, {{1, 1, 2, 13, -3}, {1, 3, 4, 13, 5}});
    execute(u"update equipes set societe = 'Les Amis du Cochonnet de Saint-Raphaël' where equipe < 3"_qs);
    clicCellule(1, 1, Qt::RightButton);
    for (const bool detail : {false, true}) {
        choisit(1, 2);
        const Pages pages = imprime(detail, false);
        ASSERT_EQ(pages.size(), 1u);
        const Dessin *longue = trouve(pages[0], grille().TextMatrix(1, 1).trimmed());
        const Dessin *score = trouve(pages[0], u"13:Disqualifié"_qs);
        const Dessin *courte = trouve(pages[0], grille().TextMatrix(2, 1).trimmed());
        ASSERT_TRUE(longue != nullptr && score != nullptr && courte != nullptr);
        EXPECT_LE(longue->x2, score->x1);
        EXPECT_LT(longue->taille, score->taille);
        EXPECT_EQ(courte->taille, detail ? 12 : 14);
    }
}

TEST_F(FeuillesPalmares, TheListOfTeamsTakesAsManyPlayersAsATeamHas)
{
    ouvre(4, {{1, 1, 2, 13, 4}});
    execute(u"update equipes set societe = '*Panachée' where equipe = 1"_qs);
    execute(u"insert into equipes (concours, equipe, doublon, nom, licence, societe) values "
            "(0, 1, 0, 'NOM1', 'L1-0', 'Club connu')"_qs);
    execute(u"delete from equipes where concours = 1 and equipe = 2 and doublon = 1"_qs);
    ASSERT_TRUE(ImprimeDetail({partage(), formulaires(), boites}));
    ASSERT_EQ(documents.size(), 1u);
    const QStringList lignes = rangeesA(documents[0][0], {300, 700, 4100, 5100});
    const QStringList attendues = {
        u"1|- NOM1 P0|L1-0|Club connu"_qs, u"- NOM1 P1|L1-1|."_qs,      u"2|- NOM2 P0|L2-0|Club 2"_qs,
        u"-  P0|L3-0|Club 3"_qs, // borrowed from the team behind
        u"3|-  P1|L3-1|Club 3"_qs,         u"- NOM4 P0|L4-0|Club 4"_qs, u"4|- NOM4 P1|L4-1|Club 4"_qs,
    };
    EXPECT_EQ(lignes, attendues) << lignes.join(u'\n').toStdString();
}

QString sortie(const QString &programme, const QStringList &arguments)
{
    QProcess lecteur;
    lecteur.start(programme, arguments);
    EXPECT_TRUE(lecteur.waitForFinished()) << programme.toStdString() << " cannot be run";
    return QString::fromUtf8(lecteur.readAllStandardOutput());
}

TEST_F(FeuillesPalmares, OnlyThePagesAskedForAreSent)
{
    ouvre(37, tours(37, 5));
    const QString fichier = dossier() + u"/pages.pdf"_qs;
    for (const auto &[premiere, derniere, attendues] :
         {std::tuple(2, 3, u"Page 2|Page 3"_qs), std::tuple(3, 99, u"Page 3"_qs), std::tuple(50, 60, QString())}) {
        QFile::remove(fichier);
        boites.imprimante = [&, premiere, derniere] {
            auto imprimante = std::make_unique<QPrinter>();
            imprimante->setOutputFormat(QPrinter::PdfFormat);
            imprimante->setOutputFileName(fichier);
            imprimante->setPageSize(QPageSize(QPageSize::A4));
            imprimante->setPrintRange(QPrinter::PageRange);
            imprimante->setFromTo(premiere, derniere);
            return std::make_unique<DestinationImprimante>(std::move(imprimante));
        };
        choisit(1, grille().Rows() - 1);
        imprime(false, false);
        QStringList pages;
        static const QRegularExpression numero(u"Page \\d+"_qs);
        const QString texte =
            QFile::exists(fichier) ? sortie(u"pdftotext"_qs, {u"-layout"_qs, fichier, u"-"_qs}) : QString();
        for (auto trouve = numero.globalMatch(texte); trouve.hasNext();)
            pages += trouve.next().captured();
        EXPECT_EQ(pages.join(u'|'), attendues);
    }
}

TEST_F(FeuillesPalmares, AnotherReaderFindsTheTextsOfThePdf)
{
    ouvre(37, tours(37, 3));
    execute(u"update equipes set societe = 'Éveil de Crécy' where equipe = 3"_qs);
    clicCellule(1, 1, Qt::RightButton);
    const QString fichier = dossier() + u"/palmares.pdf"_qs;
    boites.imprimante = [&] { return std::make_unique<DestinationPdf>(fichier); };
    const int lignes = grille().Rows();
    QStringList phrases;
    for (int ligne = 1; ligne < lignes; ++ligne)
        phrases += (grille().TextMatrix(ligne, 1) + u' ' + grille().TextMatrix(ligne, 2)).simplified();
    choisit(1, lignes - 1);
    imprime(true, false);

    QStringList lues;
    for (const QString &ligne : sortie(u"pdftotext"_qs, {u"-layout"_qs, fichier, u"-"_qs}).split(u'\n'))
        lues += ligne.simplified();
    for (const QString &phrase : phrases)
        EXPECT_TRUE(lues.contains(phrase)) << phrase.toStdString();
    EXPECT_TRUE(phrases.join(u'\n').contains(u"Éveil de Crécy"));

    QStringList polices = sortie(u"pdffonts"_qs, {fichier}).split(u'\n', Qt::SkipEmptyParts);
    ASSERT_GT(polices.size(), 2);
    const QRegularExpression integree(u"(Times|Liberation).* yes (yes|no) +yes "_qs);
    for (const QString &police : polices.mid(2))
        EXPECT_TRUE(police.contains(integree)) << police.toStdString();
}

} // namespace
