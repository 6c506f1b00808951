#include "commun/contraste.h"
#include "commun/programme_pilote.h"
#include "noms/mesures_horloge.h"
#include "outils/projection.h"

#include <QCheckBox>
#include <QScreen>
#include <QSpinBox>

namespace {

std::vector<Feuillet> feuillets(std::initializer_list<std::pair<GenrePage, int>> pages)
{
    std::vector<Feuillet> tous;
    for (const auto &[genre, nombre] : pages)
        for (int i = 0; i < nombre; ++i)
            tous.push_back({genre, i});
    return tous;
}

class Affichage : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(prog.demarre()); }

    /// So many teams, of which each second match of the first round waits for its result.
    void inscrit(int equipes)
    {
        std::vector<moteur::EquipeInscrite> inscrites;
        for (int numero = 1; numero <= equipes; ++numero)
            inscrites.push_back({numero, u"LA BOULE JOYEUSE DE SAINT-ANTONIN %1"_qs.arg(numero % 17)});
        const qint32 concours = poseConcours(prog.base(), {.repeche = true, .equipes = inscrites});
        std::vector<moteur::Partie> parties;
        for (int i = 1; i < equipes; i += 2) {
            moteur::Partie partie{.tour = 1, .rencontre = qint16(i), .equipe1 = i, .equipe2 = i + 1};
            if (i % 4 == 1) {
                partie.score1 = 13;
                partie.score2 = 4;
            }
            parties.push_back(partie);
        }
        poseRencontres(prog.base(), concours, parties);
        prog.ouvre(u"f_resultats"_qs);
    }
    void ouvre()
    {
        prog.touche(Qt::Key_F8);
        QApplication::processEvents();
        prog.clique(A, u"Afficher"_qs);
    }
    /// A screen without a desktop makes every window that comes up the active one, whatever its flags.
    void touche(Qt::Key laquelle)
    {
        prog.fenetre(A)->activateWindow();
        QApplication::processEvents();
        prog.touche(laquelle);
    }
    Projection &vue() { return projection({prog.partage(), prog.formulaires(), prog.boites}, *prog.torvik()); }
    QString textes()
    {
        QStringList tous;
        for (const TextePose &texte : vue().vue()->textes())
            tous += texte.texte;
        return tous.join(u'|');
    }
    void tourneVers(GenrePage genre)
    {
        for (int i = 0; i < 50 && vue().vue()->carrousel().feuillet() != Feuillet{genre, 0}; ++i)
            vue().pageSuivante();
        ASSERT_EQ(vue().vue()->carrousel().feuillet().genre, genre);
    }

    inline static const QString A = u"AffichagePublic"_qs;
    ProgrammePilote prog;
};

} // namespace

TEST(MiseEnColonnes, AllLinesStandOnTheFewestPagesThatCanBeRead)
{
    constexpr QSizeF place(1840, 874);
    constexpr BornesLettre bornes{32, 130};
    // Letters that so many columns and lines leave.
    const auto lettre = [&](int colonnes, int lignes, double largeur) {
        return std::min(place.height() / (lignes * MiseEnColonnes::interligne),
                        place.width() / (colonnes * largeur + (colonnes - 1) * MiseEnColonnes::gouttiere));
    };
    for (const double largeur : {3.0, 12.0, 26.0, 90.0}) {
        for (const bool entete : {false, true}) {
            for (const int nombre : {1, 2, 7, 8, 33, 64, 257, 512, 1024}) {
                const MiseEnColonnes mise = metEnColonnes(nombre, largeur, place, bornes, entete);
                ASSERT_GE(mise.pages * mise.parPage(), nombre);
                ASSERT_LT((mise.pages - 1) * mise.parPage(), nombre) << "an empty page";
                const double permise = lettre(mise.colonnes, mise.lignes + entete, largeur);
                ASSERT_LE(mise.lettre, std::min(permise, bornes.grande) * 1.0001);
                const double assez = std::min(bornes.petite, lettre(1, 1 + entete, largeur));
                ASSERT_GE(mise.lettre, assez * 0.9999);
                double meilleure = 0; // on one page less
                for (int colonnes = 1; mise.pages > 1 && colonnes <= nombre; ++colonnes) {
                    const int lignes = int(std::ceil(double(nombre) / (mise.pages - 1) / colonnes));
                    meilleure = std::max(meilleure, lettre(colonnes, lignes + entete, largeur));
                }
                EXPECT_LT(meilleure, assez) << nombre << " lines of " << largeur << " would stand on one page less";
            }
        }
    }
    EXPECT_EQ(metEnColonnes(0, 5, place, bornes).pages, 0);
}

TEST(Carrousel, ThePageInHandStaysWhateverChangesRoundIt)
{
    Carrousel carrousel;
    carrousel.regle(1000);
    carrousel.prend(feuillets({{GenrePage::Tirage, 2}, {GenrePage::Resultats, 3}}));
    EXPECT_EQ(carrousel.feuillet(), (Feuillet{GenrePage::Tirage, 0}));
    EXPECT_FALSE(carrousel.avance(999));
    EXPECT_TRUE(carrousel.avance(1));
    for (int i = 0; i < 3; ++i)
        carrousel.suivante();
    EXPECT_EQ(carrousel.feuillet(), (Feuillet{GenrePage::Resultats, 2}));
    carrousel.avance(400);
    carrousel.prend(feuillets({{GenrePage::Attendues, 4}, {GenrePage::Resultats, 2}, {GenrePage::Classement, 1}}));
    EXPECT_EQ(carrousel.feuillet(), (Feuillet{GenrePage::Resultats, 1}));
    EXPECT_DOUBLE_EQ(carrousel.part(), 0.4);
    EXPECT_EQ(carrousel.pagesDuGenre(), 2);
    carrousel.prend(feuillets({{GenrePage::Attendues, 4}, {GenrePage::Classement, 1}}));
    EXPECT_EQ(carrousel.feuillet(), (Feuillet{GenrePage::Classement, 0}));
    EXPECT_DOUBLE_EQ(carrousel.part(), 0);
    carrousel.prend(feuillets({{GenrePage::Attendues, 1}}));
    EXPECT_EQ(carrousel.feuillet(), (Feuillet{GenrePage::Attendues, 0}));

    carrousel.avance(300);
    carrousel.pause(true);
    EXPECT_FALSE(carrousel.avance(5000));
    carrousel.pause(false);
    EXPECT_FALSE(carrousel.avance(699));
    EXPECT_TRUE(carrousel.avance(1)) << "one page turns to itself";
}

TEST(PlaceVue, NeverOnTheOperatorsScreenWhenThereIsAnother)
{
    const PlaceVue voulue{u"B"_qs, true};
    EXPECT_EQ(choisitPlace({u"A"_qs, u"B"_qs, u"C"_qs}, u"A"_qs, voulue), voulue);
    EXPECT_EQ(choisitPlace({u"A"_qs, u"B"_qs, u"C"_qs}, u"B"_qs, voulue), (PlaceVue{u"A"_qs, true}));
    EXPECT_EQ(choisitPlace({u"A"_qs, u"B"_qs}, u"A"_qs, {u"A"_qs, false}), (PlaceVue{u"B"_qs, false}));
    EXPECT_EQ(choisitPlace({u"A"_qs}, u"A"_qs, voulue), (PlaceVue{u"A"_qs, false})) << "its screen was unplugged";
}

TEST(ThemePublic, EveryInkReachesTheContrastOfTheThirdLevel)
{
    for (const ThemePublic &theme : {themeClair, themeSombre}) {
        for (const QColor &encre : {theme.encre, theme.discrete, theme.accent, theme.gagnante})
            for (const QColor &fond : {theme.fond, theme.bande})
                EXPECT_GE(contraste(encre, fond), 7) << encre.name().toStdString() << fond.name().toStdString();
        EXPECT_GE(contraste(theme.encreDrapeau, theme.fondDrapeau), 7);
        EXPECT_GE(contraste(theme.accent, theme.glissiere), 3) << "the moving bar";
    }
}

TEST_F(Affichage, ItFillsTheOtherScreenAndTakesNeitherFocusNorKeys)
{
    ASSERT_EQ(QGuiApplication::screens().size(), 2);
    inscrit(16);
    ouvre();
    const QRect autre = QGuiApplication::screens().at(1)->geometry();
    EXPECT_EQ(vue().vue()->geometry(), autre);
    EXPECT_TRUE(vue().vue()->isFullScreen());
    EXPECT_TRUE(vue().vue()->windowFlags() & Qt::WindowDoesNotAcceptFocus);
    EXPECT_TRUE(vue().vue()->testAttribute(Qt::WA_ShowWithoutActivating));
    touche(Qt::Key_F11);
    EXPECT_FALSE(vue().vue()->isFullScreen());
    EXPECT_TRUE(autre.contains(vue().vue()->geometry()));
    touche(Qt::Key_F12);
    EXPECT_TRUE(textes().contains(u"Pause"_qs));
    vue().vue()->bat(3600 * 1000);
    EXPECT_EQ(vue().vue()->carrousel().feuillet().genre, GenrePage::Tirage);

    touche(Qt::Key_Escape);
    EXPECT_FALSE(prog.formulaires().estChargee(A));
    ASSERT_TRUE(vue().montree()) << "the view goes on without its form";
    prog.formulaires().Montre(NomForme(u"EResultats"_qs));
    QApplication::processEvents();
    prog.touche(Qt::Key_F8);
    QApplication::processEvents();
    EXPECT_FALSE(prog.controle<QCheckBox>(A, u"Plein_ecran"_qs)->isChecked());
    EXPECT_EQ(prog.texte(A, u"Afficher"_qs), u"Cacher"_qs);
    vue().vue()->close();
    QApplication::processEvents();
    EXPECT_FALSE(vue().montree());
    EXPECT_EQ(prog.texte(A, u"Afficher"_qs), u"Afficher"_qs);
    prog.clique(A, u"Afficher"_qs);
    EXPECT_FALSE(vue().vue()->isFullScreen()) << "as it was left";
    prog.torvik()->close();
    QApplication::processEvents();
    QTest::qWait(200); // the base is closed now
    prog.termine();
}

TEST_F(Affichage, AResultIsShownWithinASecondHoweverMuchIsTyped)
{
    inscrit(8);
    ouvre();
    tourneVers(GenrePage::Attendues);
    ASSERT_TRUE(textes().contains(u"|3|–|4|"_qs)) << textes().toStdString();
    EXPECT_TRUE(textes().contains(u"Tour 1 / 4, manque 2 résultats"_qs)) << textes().toStdString();
    vue().pause(true);
    prog.formulaires().Montre(NomForme(u"EResultats"_qs));
    QApplication::processEvents();
    prog.tape(u"3\n5\n"_qs);
    QApplication::processEvents();
    QElapsedTimer montre;
    montre.start();
    while (montre.elapsed() < 900 && textes().contains(u"|3|–|4|"_qs)) {
        prog.touche(Qt::Key_Shift);
        QTest::qWait(20);
    }
    EXPECT_LT(montre.elapsed(), 900);
    EXPECT_TRUE(textes().contains(u"Dernier résultat : 4 bat 3, 13–5"_qs)) << textes().toStdString();
    EXPECT_TRUE(textes().contains(u"manque 1 résultat"_qs));

    // What goes with its base goes from the view too.
    prog.base().EcritEnGroupe([&] {
        prog.base().Execute(u"delete * from scores");
        QTest::qWait(300);
        EXPECT_TRUE(textes().contains(u"manque 1 résultat"_qs)) << "half of a group";
    });
    QTest::qWait(900);
    EXPECT_TRUE(textes().contains(u"8 équipes inscrites"_qs)) << textes().toStdString();
}

TEST_F(Affichage, EveryTextStandsWholeInItsFrameInEverySize)
{
    inscrit(130);
    mesuresHorloge(prog.formulaires()).chronometre = [] { return std::optional<qint64>(4000); };
    mesuresHorloge(prog.formulaires()).alarme = [] { return std::optional<qint64>(59); };
    vue().montre();
    for (const QSize &taille : {QSize(1920, 1080), QSize(3840, 2160), QSize(1024, 768), QSize(640, 360)}) {
        vue().vue()->showNormal();
        vue().vue()->resize(taille);
        QApplication::processEvents();
        QSet<GenrePage> vus;
        for (int page = 0; page < 40; ++page) {
            vus += vue().vue()->carrousel().feuillet().genre;
            for (const TextePose &texte : vue().vue()->textes()) {
                QFont police(QApplication::font().family());
                police.setPixelSize(int(texte.taille));
                police.setBold(texte.gras);
                police.setHintingPreference(QFont::PreferNoHinting);
                ASSERT_LE(QFontMetricsF(police).horizontalAdvance(texte.texte), texte.cadre.width() + 1)
                    << texte.texte.toStdString();
                ASSERT_TRUE(QRectF(vue().vue()->rect()).contains(texte.cadre)) << texte.texte.toStdString();
                ASSERT_TRUE(!texte.texte.endsWith(u'…') || texte.texte.startsWith(u"LA BOULE"));
            }
            vue().pageSuivante();
        }
        EXPECT_EQ(vus.size(), genresDePage);
    }
    tourneVers(GenrePage::Horloge);
    EXPECT_TRUE(textes().contains(u"Chronomètre|1:06:40|Alarme dans|00:59"_qs)) << textes().toStdString();
}
