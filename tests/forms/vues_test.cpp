#include "salle_resultats.h"

#include "results/etat_resultats.h"

#include <QScreen>
#include <QTabBar>

#include <algorithm>

namespace {

constexpr quint32 vert = 0x00FF00;
constexpr quint32 rouge = 0x0000FF;
constexpr quint32 blanc = 0xFFFFFF;

const QString manqres = u"manqres"_qs;
const QString valresu = u"valresu"_qs;
const QString groupes = u"Groupes"_qs;

class VuesResultats : public SalleResultats
{
protected:
    void montre(const QString &bouton)
    {
        prog.clique(u"EResultats"_qs, bouton);
        QApplication::processEvents();
    }
    FlexGrid *grille(const QString &forme, const QString &nom) { return prog.controle<FlexGrid>(forme, nom); }
    FlexGrid *attendus() { return grille(manqres, u"les_resultats_0"_qs); }
    FlexGrid *classement() { return grille(manqres, u"les_resultats_1"_qs); }
    FlexGrid *joues() { return grille(valresu, u"les_resultats"_qs); }

    static QString ligne(const FlexGrid &grille, int rang)
    {
        QStringList textes;
        for (int colonne = 0; colonne < grille.Cols(); ++colonne)
            textes += grille.TextMatrix(rang, colonne);
        return textes.join(u' ').trimmed();
    }
    static int rangDe(const FlexGrid &grille, int equipe, int colonne = 1)
    {
        for (int rang = 1; rang < grille.Rows(); ++rang) {
            if (grille.TextMatrix(rang, colonne) == QString::number(equipe))
                return rang;
        }
        return -1;
    }
    static void presse(FlexGrid *grille, int rang, int colonne, Qt::MouseButton bouton = Qt::LeftButton)
    {
        // A click makes the window under it the active one, as window systems do.
        grille->window()->activateWindow();
        QApplication::processEvents();
        const QPoint ou = grille->visualRect(grille->model()->index(rang - 1, colonne)).center();
        QTest::mouseClick(grille->viewport(), bouton, {}, ou);
        QApplication::processEvents();
    }
    QLineEdit *champ(const QString &nom) { return prog.controle<QLineEdit>(u"EResultats"_qs, nom); }
    QStringList valeurs(const QString &sql)
    {
        QStringList lues;
        store::Instruction lecture(prog.base().native(), sql);
        while (lecture.avance())
            lues += lecture.valeur(0).texte();
        return lues;
    }
};

TEST_F(VuesResultats, AttendusSuiventChaqueResultatEtLeClavierResteALaSaisie)
{
    ouvre(5);
    tire();
    const std::vector<MatchEssai> tires = matchs();
    prog.tape(QString::number(tires[0].equipe1));
    montre(u"manquants"_qs);
    montre(u"VALIDATION"_qs);
    ASSERT_TRUE(prog.formulaires().estVisible(manqres));
    EXPECT_EQ(prog.focus(), u"Equipe1"_qs);

    // The bye stands among the played ones from the draw on, never among the pending ones.
    EXPECT_EQ(attendus()->Rows(), 3);
    ASSERT_EQ(joues()->Rows(), 2);
    EXPECT_EQ(joues()->TextMatrix(1, 2), prog.partage().mes(42));
    EXPECT_EQ(joues()->TextMatrix(1, 3) + joues()->TextMatrix(1, 4), u"137"_qs);
    EXPECT_EQ(joues()->CellBackColor(1, 1), vert);
    EXPECT_GE(joues()->ColWidth(2), joues()->LargeurTexte(prog.partage().mes(42)));

    // What had been typed before the click still stands, and typing goes on through both refreshes.
    prog.tape(u"\n"_qs);
    EXPECT_EQ(prog.focus(), u"Score1"_qs);
    prog.tape(u"7\n"_qs);
    QApplication::processEvents();
    EXPECT_EQ(prog.focus(), u"Equipe1"_qs);
    EXPECT_EQ(QApplication::activeWindow(), controle(u"Equipe1"_qs)->window());
    EXPECT_EQ(attendus()->Rows(), 2);
    ASSERT_EQ(joues()->Rows(), 3);
    const int rang = rangDe(*joues(), tires[0].equipe1);
    ASSERT_GE(rang, 1);
    EXPECT_EQ(ligne(*joues(), rang), u"1 %1 %2 7 13"_qs.arg(tires[0].equipe1).arg(tires[0].equipe2));
    EXPECT_EQ(joues()->CellBackColor(rang, 1), rouge);
    EXPECT_EQ(joues()->CellBackColor(rang, 2), vert);
    EXPECT_FALSE(joues()->CellFontBold(rang, 1));
    EXPECT_TRUE(joues()->CellFontBold(rang, 2));
    EXPECT_EQ(classement()->Rows(), 6);
}

TEST_F(VuesResultats, MotsEtDoubleClics)
{
    ouvre(4);
    tire();
    montre(u"VALIDATION"_qs);
    const std::vector<MatchEssai> tires = matchs();
    prog.tape(u"%1\n%2\n"_qs.arg(tires[0].equipe1).arg(prog.partage().mes(43)));
    prog.tape(u"%1\n"_qs.arg(tires[1].equipe1));
    prog.doubleClique(u"EResultats"_qs, u"Equipe1"_qs);
    QApplication::processEvents();
    EXPECT_EQ(ligne(*joues(), rangDe(*joues(), tires[0].equipe1)),
              u"1 %1 %2 %3 13"_qs.arg(tires[0].equipe1).arg(tires[0].equipe2).arg(prog.partage().mes(43)));
    // Won by a double click: told by colour and weight, not by points.
    const int rang = rangDe(*joues(), tires[1].equipe1);
    EXPECT_EQ(ligne(*joues(), rang), u"1 %1 %2"_qs.arg(tires[1].equipe1).arg(tires[1].equipe2));
    EXPECT_EQ(joues()->CellBackColor(rang, 1), vert);
}

TEST_F(VuesResultats, UnResultatCliqueRevientASaisirPuisSeCorrige)
{
    ouvre(5);
    tire();
    const std::vector<MatchEssai> tires = matchs();
    prog.tape(u"%1\n7\n"_qs.arg(tires[1].equipe1));
    montre(u"VALIDATION"_qs);
    presse(joues(), rangDe(*joues(), tires[1].equipe1), 0, Qt::MiddleButton); // nothing but the two buttons acts
    EXPECT_EQ(champs(), u"   "_qs);
    presse(joues(), rangDe(*joues(), tires[1].equipe1), 0);
    EXPECT_EQ(champs(), u"%1 %2 7 13"_qs.arg(tires[1].equipe1).arg(tires[1].equipe2));
    EXPECT_EQ(prog.focus(), u"Score1"_qs);
    EXPECT_TRUE(champ(u"Equipe2"_qs)->styleSheet().contains(u"#00ff00"_qs));
    EXPECT_TRUE(champ(u"Equipe1"_qs)->styleSheet().contains(u"#ff0000"_qs));

    prog.tape(u"11\n"_qs);
    QApplication::processEvents();
    EXPECT_EQ(matchs()[1].score1, 11);
    EXPECT_EQ(ligne(*joues(), rangDe(*joues(), tires[1].equipe1)),
              u"1 %1 %2 11 13"_qs.arg(tires[1].equipe1).arg(tires[1].equipe2));
    EXPECT_EQ(champ(u"Equipe1"_qs)->styleSheet(), QString()); // white again with its text gone
    EXPECT_EQ(champ(u"Equipe2"_qs)->styleSheet(), QString());

    // A bye is not for correction, and neither is anything while a right press is being handled.
    const int exempt = joues()->TextMatrix(1, 2) == prog.partage().mes(42) ? 1 : 2;
    presse(joues(), exempt, 1);
    prog.formulaires().etat<EtatResultats>().ClicGrille = false;
    presse(joues(), 3 - exempt, 1);
    EXPECT_EQ(champs(), u"   "_qs);
    prog.formulaires().etat<EtatResultats>().ClicGrille = true;
}

TEST_F(VuesResultats, ClicDroitTrieSurLaColonne)
{
    ouvre(8);
    tire();
    joueTour();
    montre(u"VALIDATION"_qs);
    const auto colonne = [&](int numero) {
        std::vector<int> nombres;
        for (int rang = 1; rang < joues()->Rows(); ++rang)
            nombres.push_back(joues()->TextMatrix(rang, numero).toInt());
        return nombres;
    };
    ASSERT_EQ(colonne(1).size(), 4u);
    presse(joues(), 2, 2, Qt::RightButton);
    EXPECT_TRUE(std::ranges::is_sorted(colonne(2)));
    EXPECT_EQ(joues()->Col(), 2);
    EXPECT_EQ(joues()->ColSel(), 4);
    EXPECT_EQ(joues()->CellBackColor(1, 1), vert); // colours go with their rows
    presse(joues(), 2, 0, Qt::RightButton); // the round sorts by the first team
    EXPECT_TRUE(std::ranges::is_sorted(colonne(1)));
    EXPECT_TRUE(prog.formulaires().etat<EtatResultats>().ClicGrille);
    EXPECT_EQ(champs(), u"   "_qs);
    EXPECT_EQ(QApplication::activeWindow(), controle(u"Equipe1"_qs)->window());
    EXPECT_EQ(prog.focus(), u"Equipe1"_qs);
}

TEST_F(VuesResultats, ClicDroitLanceUneRencontreEtElleSeule)
{
    ouvre(8);
    tire();
    montre(u"manquants"_qs);
    const QString sql = u"select lancee from scores order by rowid"_qs;
    const QStringList avant = valeurs(sql);
    const std::vector<MatchEssai> tires = matchs();
    const int rang = rangDe(*attendus(), tires[2].equipe1);
    EXPECT_EQ(attendus()->CellBackColor(rang, 1), rouge);
    EXPECT_TRUE(attendus()->CellFontBold(rang, 2));
    presse(attendus(), rang, 0, Qt::RightButton);
    EXPECT_EQ(attendus()->CellBackColor(rang, 1), blanc);
    EXPECT_EQ(attendus()->CellBackColor(rang, 2), blanc);
    EXPECT_FALSE(attendus()->CellFontBold(rang, 2));
    QStringList apres = avant;
    apres[2] = u"-1"_qs;
    EXPECT_EQ(valeurs(sql), apres);

    // Launched matches come first once the grid is filled anew.
    prog.tape(u"%1\n7\n"_qs.arg(tires[0].equipe1));
    QApplication::processEvents();
    EXPECT_EQ(attendus()->TextMatrix(1, 1), QString::number(tires[2].equipe1));
    presse(attendus(), 1, 2, Qt::RightButton);
    EXPECT_EQ(attendus()->CellBackColor(1, 1), rouge);
    EXPECT_EQ(valeurs(sql), avant);

    prog.clique(manqres, u"classement"_qs);
    presse(classement(), 1, 1, Qt::RightButton);
    EXPECT_EQ(valeurs(sql), avant);
}

TEST_F(VuesResultats, LeBoutonBasculeEntreAttendusEtClassement)
{
    ouvre(4);
    tire();
    montre(u"manquants"_qs);
    auto *bouton = prog.controle<QPushButton>(manqres, u"classement"_qs);
    const QWidget *forme = prog.formulaires().forme(manqres);
    const auto etat = [&] {
        return QStringList{forme->windowTitle(), bouton->text(), bouton->property("bascule").toString(),
                           attendus()->isVisible() ? u"0"_qs : QString(),
                           classement()->isVisible() ? u"1"_qs : QString()}
            .join(u'|');
    };
    EXPECT_EQ(etat(), u"Résultats attendus|Classement|rose|0|"_qs);
    EXPECT_EQ(bouton->grab().toImage().pixelColor(8, 8), QColor(255, 128, 255));
    prog.clique(manqres, u"classement"_qs);
    EXPECT_EQ(etat(), u"Classement victoires G.a.|Attendus|vert||1"_qs);
    EXPECT_EQ(classement()->pos(), attendus()->pos());
    EXPECT_NE(bouton->grab().toImage().pixelColor(8, 8), QColor(255, 128, 255));
    bouton->window()->activateWindow();
    QApplication::processEvents();
    prog.clique(manqres, u"classement"_qs);
    QApplication::processEvents();
    EXPECT_EQ(etat(), u"Résultats attendus|Classement|rose|0|"_qs);
    EXPECT_EQ(prog.focus(), u"Equipe1"_qs);
}

TEST_F(VuesResultats, ClassementEtGroupesDUnTour)
{
    ouvre(5);
    tire();
    joueTour();
    montre(u"manquants"_qs);
    const std::vector<MatchEssai> joues = matchs();
    const auto [premier, second] = std::minmax(joues[0].equipe1, joues[1].equipe1);
    const auto [perdant, autre] = std::minmax(joues[0].equipe2, joues[1].equipe2);
    const QString exempte = valeurs(u"select equipe_1 from scores where equipe_2 = 0"_qs).value(0);
    const QString attendues[] = {u"1 %1 1 0 13 6 +7"_qs.arg(premier), u"- %1 1 0 13 6 +7"_qs.arg(second),
                                 u"3 %1 1 0 13 7 +6"_qs.arg(exempte), u"4 %1 0 1 6 13 -7"_qs.arg(perdant),
                                 u"- %1 0 1 6 13 -7"_qs.arg(autre)};
    ASSERT_EQ(classement()->Rows(), 6);
    EXPECT_EQ(classement()->Cols(), 7);
    for (int rang = 1; rang <= 5; ++rang) {
        EXPECT_EQ(ligne(*classement(), rang), attendues[rang - 1]);
        EXPECT_EQ(classement()->CellBackColor(rang, 6), rang <= 3 ? vert : rouge) << rang;
    }
    auto *onglets = prog.controle<QTabBar>(groupes, u"TabStrip1"_qs);
    ASSERT_EQ(onglets->count(), 2);
    EXPECT_EQ(onglets->tabText(0) + u'|' + onglets->tabText(1), u"0 victoire|1 victoire"_qs);
    EXPECT_EQ(onglets->currentIndex(), 1);
    const FlexGrid &une = *grille(groupes, u"les_resultats_2"_qs);
    const FlexGrid &aucune = *grille(groupes, u"les_resultats_1"_qs);
    ASSERT_TRUE(une.Rows() == 4 && aucune.Rows() == 3);
    const auto place = [](const FlexGrid &groupe, int rang) {
        return QStringList{groupe.TextMatrix(rang, 0), groupe.TextMatrix(rang, 1), groupe.TextMatrix(rang, 2),
                           groupe.TextMatrix(rang, 7)}
            .join(u' ');
    };
    EXPECT_EQ(place(une, 1), u"1 %1 1 +7"_qs.arg(premier));
    EXPECT_EQ(place(une, 2), u" %1 1 +7"_qs.arg(second));
    EXPECT_EQ(place(une, 3), u"3 %1 1 +6"_qs.arg(exempte));
    EXPECT_EQ(place(aucune, 1), u"4 %1 1 -7"_qs.arg(perdant));
    EXPECT_EQ(place(aucune, 2), u" %1 1 -7"_qs.arg(autre));
}

TEST_F(VuesResultats, UnOngletMontreSonGroupeEtUneCorrectionEnRetire)
{
    ouvre(4);
    montre(u"manquants"_qs);
    montre(u"VALIDATION"_qs);
    EXPECT_EQ(attendus()->Rows() + classement()->Rows() + joues()->Rows(), 3) << "before the draw, only the titles";
    EXPECT_FALSE(prog.formulaires().estVisible(groupes)) << "no ranking, nothing to show";
    tire();
    joueTour();
    montre(u"manquants"_qs);
    auto *onglets = prog.controle<QTabBar>(groupes, u"TabStrip1"_qs);
    ASSERT_EQ(onglets->count(), 2);
    FlexGrid *aucune = grille(groupes, u"les_resultats_1"_qs);
    FlexGrid *une = grille(groupes, u"les_resultats_2"_qs);
    EXPECT_TRUE(une->isVisible() && !aucune->isVisible());
    EXPECT_FALSE(grille(groupes, u"les_resultats_0"_qs)->isVisible());
    QTest::mouseClick(onglets, Qt::LeftButton, {}, onglets->tabRect(0).center());
    EXPECT_TRUE(aucune->isVisible() && !une->isVisible());
    EXPECT_EQ(aucune->Rows(), 3);

    // Without a winner left, nobody stands under the second tab.
    execute(u"update scores set score_1 = null, score_2 = null"_qs);
    montre(u"manquants"_qs);
    EXPECT_EQ(onglets->count(), 1);
    EXPECT_TRUE(aucune->isVisible() && !une->isVisible());
    EXPECT_EQ(ligne(*classement(), 1).section(u' ', 2), u"0 0 - - -"_qs);
}

/// Whether a window covers one of the controls \p noms of \p forme, the main window without a name.
std::string couverts(ProgrammePilote &prog, const QRect &fenetre, const QString &forme, const QStringList &noms)
{
    QStringList caches;
    for (const QString &nom : noms) {
        const QWidget *controle = prog.controle(forme, nom);
        if (fenetre.intersects(QRect(controle->mapToGlobal(QPoint()), controle->size())))
            caches += nom;
    }
    return caches.join(u' ').toStdString();
}

TEST_F(VuesResultats, LesVuesPartentAvecLeTirageEtRienNeCouvreLaSaisie)
{
    const QRect ecran = QApplication::primaryScreen()->geometry();
    if (ecran.width() < 1366)
        GTEST_SKIP() << "needs the screen of portable.json";
    ouvre(9); // one team has a bye: a word stands among the results
    tire();
    prog.ouvre(u"chrono"_qs);
    montre(u"manquants"_qs);
    montre(u"VALIDATION"_qs);
    const QString nomSaisie = u"EResultats"_qs;
    const QStringList champsEtBoutons{u"listconcours"_qs, u"Equipe1"_qs,   u"Equipe2"_qs,    u"Score1"_qs, u"Score2"_qs,
                                      u"imprimer"_qs,     u"manquants"_qs, u"VALIDATION"_qs, u"hit"_qs};
    const QWidget *saisie = prog.formulaires().forme(nomSaisie);
    const int sousLaBarre = prog.controle({}, u"Terrain"_qs)->mapToGlobal(QPoint()).y();
    for (const QString &vue : {manqres, valresu, groupes, u"FrmHorloge"_qs}) {
        SCOPED_TRACE(vue.toStdString());
        const QWidget *fenetre = prog.formulaires().forme(vue);
        ASSERT_TRUE(fenetre != nullptr && fenetre->isVisible());
        const QRect cadre = fenetre->frameGeometry();
        EXPECT_EQ(couverts(prog, cadre, nomSaisie, champsEtBoutons), "");
        EXPECT_EQ(couverts(prog, cadre, {}, {u"f_concours"_qs, u"f_equipes"_qs}), "");
        EXPECT_TRUE(ecran.contains(cadre)) << cadre.left() << ' ' << cadre.right() << ' ' << cadre.bottom();
        EXPECT_TRUE(cadre.top() >= sousLaBarre || vue == groupes || vue == u"FrmHorloge");
    }
    const auto place = [&](const QString &nom) { return prog.formulaires().forme(nom)->frameGeometry(); };
    EXPECT_FALSE(place(manqres).intersects(place(groupes)));
    EXPECT_FALSE(place(valresu).intersects(place(u"FrmHorloge"_qs)));
    EXPECT_GE(place(valresu).left(), place(nomSaisie).right() - 12);
    const Formulaire *groupe = prog.formulaires().forme(groupes);
    EXPECT_EQ(groupe->Left(), prog.formulaires().forme(u"EResultats"_qs)->Left() - groupe->Width());
    EXPECT_EQ(groupe->pos().y(), 3);
    const QWidget *resultats = prog.controle({}, u"f_resultats"_qs);
    EXPECT_LT(resultats->mapToGlobal(resultats->rect().center()).x() + 45, groupe->pos().x()) << "its name is covered";
    EXPECT_EQ(saisie, QApplication::activeWindow());

    // A form that was taken to the left edge of the screen is left free there as well.
    prog.formulaires().Cache(NomForme(manqres));
    prog.formulaires().forme(nomSaisie)->move(0, 200);
    montre(u"manquants"_qs);
    EXPECT_EQ(couverts(prog, place(manqres), nomSaisie, champsEtBoutons), "");

    joueTour();
    EXPECT_TRUE(prog.formulaires().estVisible(manqres));
    tire();
    for (const QString &vue : {manqres, valresu, groupes})
        EXPECT_FALSE(prog.formulaires().estVisible(vue)) << vue.toStdString();
}

} // namespace
