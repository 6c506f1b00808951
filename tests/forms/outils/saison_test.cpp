#include "commun/programme_pilote.h"
#include "feuilles_essai.h"
#include "outils/table_saison.h"
#include "printing/courbe.h"

#include <QClipboard>
#include <QDateEdit>
#include <QHeaderView>
#include <QTabBar>
#include <QTableView>

namespace {

class VueSaisonEssai : public testing::Test
{
protected:
    /// Three competitions; the clubs win 2, 1 and 0 matches.
    void SetUp() override
    {
        ASSERT_TRUE(prog.demarre());
        const QString types[] = {u"1 - Doublettes"_qs, u"2 - Triplettes"_qs, u"1 - Doublettes"_qs};
        for (int i = 0; i < 3; ++i) {
            const qint32 concours =
                poseConcours(prog.base(),
                             {.type = types[i],
                              .equipes = {{1, u"Éguilles"_qs}, {2, u"=Zénith; \"Sud\""_qs}, {3, u"Aups"_qs}}});
            poseRencontres(prog.base(), concours,
                           {{.tour = 1,
                             .rencontre = 1,
                             .equipe1 = 1,
                             .equipe2 = i == 2 ? 3 : 2,
                             .score1 = i == 1 ? 9 : 13,
                             .score2 = i == 1 ? 13 : 5}});
            prog.base().Execute(
                u"update concours set date = '2026-0%1-10', lieu = 'Lieu %1' where concours = %2"_qs.arg(3 + i).arg(
                    concours));
        }
        prog.menu(u"mnu_Saison"_qs)->trigger();
        QApplication::processEvents();
        QTest::qWait(20);
    }

    QTableView *lignes() const { return prog.controle<QTableView>(S, u"Lignes"_qs); }
    QString colonne(int laquelle) const
    {
        QStringList textes;
        for (int ligne = 0; ligne < lignes()->model()->rowCount(); ++ligne)
            textes += lignes()->model()->index(ligne, laquelle).data().toString();
        return textes.join(u'|');
    }
    /// A click on the head of the column.
    void clique(int laquelle)
    {
        QHeaderView *tete = lignes()->horizontalHeader();
        QTest::mouseClick(tete->viewport(), Qt::LeftButton, {},
                          QPoint(tete->sectionViewportPosition(laquelle) + 8, tete->height() / 2));
    }

    inline static const QString S = u"Saison"_qs;
    ProgrammePilote prog;
};

} // namespace

TEST_F(VueSaisonEssai, ListsAreSortedFilteredAndNarrowed)
{
    EXPECT_EQ(colonne(0), u"Éguilles|=Zénith; \"Sud\"|Aups"_qs);
    EXPECT_EQ(colonne(2), u"3|2|1"_qs) << "matches";
    EXPECT_EQ(colonne(6), u"12|-4|-8"_qs) << "difference";
    clique(0);
    EXPECT_EQ(colonne(0), u"=Zénith; \"Sud\"|Aups|Éguilles"_qs);
    clique(0);
    EXPECT_EQ(colonne(0), u"Éguilles|Aups|=Zénith; \"Sud\""_qs);
    lignes()->setFocus();
    lignes()->setCurrentIndex(lignes()->model()->index(0, 6));
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(lignes()->viewport(), &menu);
    EXPECT_EQ(colonne(6), u"12|-4|-8"_qs) << "numbers begin with the greatest";

    prog.controle<QTabBar>(S, u"Vue"_qs)->setCurrentIndex(2);
    EXPECT_EQ(colonne(1), u"10/03/2026|10/04/2026|10/05/2026"_qs);
    prog.controle<QDateEdit>(S, u"Depuis"_qs)->setDate(QDate(2026, 4, 10));
    EXPECT_EQ(colonne(2), u"Lieu 4|Lieu 5"_qs);
    auto *type = prog.controle<QComboBox>(S, u"Type"_qs);
    ASSERT_EQ(type->count(), 3);
    type->setCurrentIndex(1);
    Q_EMIT type->activated(1);
    EXPECT_EQ(colonne(2), u"Lieu 5"_qs);
    EXPECT_EQ(prog.texte(S, u"Resume"_qs), u"1 concours, 3 équipes, 1 partie, 2 clubs, 4 licences"_qs);

    // A list keeps its order over readings and views; a type whose competitions have gone is chosen no more.
    prog.controle<QTabBar>(S, u"Vue"_qs)->setCurrentIndex(0);
    EXPECT_EQ(colonne(6), u"8|-8"_qs);
    clique(7);
    EXPECT_EQ(colonne(7), u"1|2"_qs) << "the best place first";
    clique(7);
    EXPECT_EQ(colonne(0), u"Aups|Éguilles"_qs);
    clique(8);
    EXPECT_EQ(lignes()->horizontalHeader()->sortIndicatorSection(), 7) << "bars are not sorted by";
    EXPECT_EQ(colonne(0), u"Aups|Éguilles"_qs);
    lignes()->selectAll();
    prog.base().Execute(u"update concours set type = '2 - Triplettes'");
    prog.formulaires().forme(S)->Rafraichir();
    EXPECT_EQ(type->currentIndex(), 0);
    EXPECT_EQ(colonne(0), u"Aups|=Zénith; \"Sud\"|Éguilles"_qs);
    QStringList choisies;
    for (const QModelIndex &ligne : lignes()->selectionModel()->selectedRows())
        choisies += ligne.data().toString();
    EXPECT_EQ(choisies.join(u'|'), u"Aups|Éguilles"_qs);
    prog.clique(S, u"Tout"_qs);
    EXPECT_EQ(prog.controle<QDateEdit>(S, u"Depuis"_qs)->date(), QDate(2026, 3, 10));
    EXPECT_FALSE(prog.controle(S, u"Tout"_qs)->isEnabled());
    prog.controle<QTabBar>(S, u"Vue"_qs)->setCurrentIndex(2);
    EXPECT_EQ(colonne(2), u"Lieu 3|Lieu 4|Lieu 5"_qs);

    // A day that has not been chosen follows the base.
    prog.base().Execute(u"update concours set date = '2026-12-24' where concours = 3");
    prog.formulaires().forme(S)->Rafraichir();
    EXPECT_EQ(prog.controle<QDateEdit>(S, u"Jusqua"_qs)->date(), QDate(2026, 12, 24));
    EXPECT_EQ(colonne(1), u"10/03/2026|10/04/2026|24/12/2026"_qs);
}

TEST_F(VueSaisonEssai, TheListGoesToTheClipboardToPaperAndToASpreadsheet)
{
    lignes()->selectRow(1);
    prog.clique(S, u"Copier"_qs);
    EXPECT_EQ(
        QGuiApplication::clipboard()->text(),
        u"Club\tConcours\tParties\tGagnées\tPour\tContre\tEcart\tPlace\n=Zénith; \"Sud\"\t2\t2\t1\t18\t22\t-4\t1\n"_qs);
    EXPECT_EQ(TexteTabule({u"Club"_qs, u"Parties"_qs}, {{u"Aups\tVar\r\n83"_qs, u"2"_qs}}),
              u"Club\tParties\nAups Var 83\t2\n"_qs);

    const QString chemin = prog.dossier() + u"/clubs.csv"_qs;
    prog.boites.attendFichier(u"Exporter la liste"_qs, chemin);
    prog.boites.attend(u"La liste est dans"_qs);
    prog.clique(S, u"Exporter"_qs);
    QFile fichier(chemin);
    ASSERT_TRUE(fichier.open(QIODevice::ReadOnly));
    const QByteArray octets = fichier.readAll();
    EXPECT_TRUE(octets.startsWith("\xEF\xBB\xBF"));
    const QStringList rangees = QString::fromUtf8(octets).split(u"\r\n"_qs);
    EXPECT_EQ(rangees[0], u"Club;Concours;Parties;Gagnées;Pour;Contre;Ecart;Place"_qs);
    EXPECT_EQ(rangees[1], u"Éguilles;3;3;2;35;23;12;1"_qs);
    EXPECT_EQ(rangees[2], u"\"'=Zénith; \"\"Sud\"\"\";2;2;1;18;22;-4;1"_qs);
    EXPECT_EQ(rangees.size(), 5);
    prog.boites.attendFichier(u"Exporter la liste"_qs, prog.dossier() + u"/absent/clubs.csv"_qs);
    prog.boites.attend(u"La liste n'a pas pu être écrite"_qs);
    prog.clique(S, u"Exporter"_qs);

    std::vector<Pages> documents;
    prog.boites.imprimante = [&] { return std::make_unique<DestinationGardee>(documents); };
    prog.clique(S, u"Imprimer"_qs);
    ASSERT_EQ(documents.size(), 1U);
    const PageDessinee &page = documents[0][0];
    EXPECT_NE(trouve(page, u"Saison du 10/03/2026 au 10/05/2026"_qs), nullptr);
    // The bars are as long as the matches played.
    int plusLongue = 0;
    const Dessin *derniere = trouve(page, u"Aups"_qs);
    ASSERT_NE(derniere, nullptr);
    int delADerniere = 0;
    for (const Dessin &trait : page.dessins) {
        if (trait.genre != Dessin::Trait || trait.x1 < 9000 || trait.x1 == trait.x2)
            continue;
        plusLongue = std::max(plusLongue, trait.x2 - trait.x1);
        if (trait.y1 >= derniere->y1 && trait.y1 < derniere->y1 + 250)
            delADerniere = std::max(delADerniere, trait.x2 - trait.x1);
    }
    EXPECT_NEAR(plusLongue, 3 * delADerniere, 6);

    // The line has its days and its greatest number, and what was chosen stands below the title.
    EXPECT_NE(trouve(page, u"10/03/2026"_qs), nullptr);
    EXPECT_NE(trouve(page, u"10/05/2026"_qs), nullptr);
    auto *type = prog.controle<QComboBox>(S, u"Type"_qs);
    type->setCurrentIndex(1);
    Q_EMIT type->activated(1);
    prog.clique(S, u"Imprimer"_qs);
    EXPECT_NE(trouve(documents[1][0], u"1 - Doublettes"_qs), nullptr);
    prog.base().Execute(u"update concours set date = null");
    prog.formulaires().forme(S)->Rafraichir();
    prog.clique(S, u"Imprimer"_qs);
    EXPECT_NE(trouve(documents[2][0], u"Saison"_qs), nullptr);
    for (const Pages &document : documents)
        VerifiePlaces(document[0], papierA4.width() - 480, papierA4.height() - 800);
}

TEST(CourbeSaison, PointsStandAsTimeGoesBy)
{
    const QRectF cadre(10, 20, 100, 40);
    const QDate jour(2026, 3, 1);
    EXPECT_TRUE(PointsDeLaCourbe({}, cadre).empty());
    EXPECT_EQ(PointsDeLaCourbe({{jour, 0}}, cadre), std::vector<QPointF>({{60, 60}}));
    EXPECT_EQ(PointsDeLaCourbe({{jour, 10}, {jour.addDays(1), 20}, {jour.addDays(10), 0}}, cadre),
              std::vector<QPointF>({{10, 40}, {20, 20}, {110, 60}}));
}
