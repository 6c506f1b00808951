#include "partage/base.h"
#include "results/etat_resultats.h"
#include "salle_resultats.h"

#include <QKeyEvent>

namespace {

/// The draw button, the hidden gestures and the change of competition.
class TirageResultats : public SalleResultats
{
protected:
    QWidget *forme() { return prog.formulaires().forme(u"EResultats"_qs); }
    QRect bouton() { return controle(u"tirage_suivant"_qs)->geometry(); }
    QPoint aCote() { return {bouton().x() + bouton().width(), bouton().center().y()}; }
    void presse(QPoint ou, Qt::KeyboardModifiers avec, Qt::MouseButton souris = Qt::RightButton)
    {
        QWidget *enfant = forme()->childAt(ou);
        QWidget *cible = enfant == nullptr ? forme() : enfant;
        QTest::mousePress(cible, souris, avec, cible->mapFrom(forme(), ou));
        QTest::mouseRelease(cible, souris, avec, cible->mapFrom(forme(), ou));
    }
    void choisit(const QString &numero)
    {
        auto *liste = qobject_cast<QComboBox *>(controle(u"listconcours"_qs));
        liste->setFocus();
        liste->clearEditText();
        prog.tape(numero + u'\n');
    }
};

TEST_F(TirageResultats, TroisToursPourHuitEquipes)
{
    ouvre(8);
    EXPECT_EQ(textes(u"Label2 tirage_suivant"_qs), u"8  équipes|Lancer le concours"_qs);
    for (int tour = 1; tour <= 3; ++tour) {
        tire();
        EXPECT_EQ(tourpri(), tour);
        EXPECT_FALSE(visible(u"tirage_suivant"_qs));
        EXPECT_EQ(texte(u"Label2"_qs), u"Tour N° %1"_qs.arg(tour));
        EXPECT_EQ(texte(u"tour_P1"_qs), u" manque 4  Résultats"_qs);
        joueTour();
        EXPECT_EQ(texte(u"tirage_suivant"_qs), u"Tirage tour N°%1"_qs.arg(tour + 1));
        EXPECT_EQ(visible(u"tirage_suivant"_qs), tour < 3);
    }
    EXPECT_EQ(texte(u"tour_P1"_qs), u"Concours terminé"_qs);
    EXPECT_FALSE(visible(u"tirage_suivant"_qs));
    rouvre();
    EXPECT_EQ(texte(u"tour_P1"_qs), u"Concours terminé"_qs);
    EXPECT_FALSE(visible(u"tirage_suivant"_qs));
    // The option is read afresh: with it one more round is offered.
    execute(u"update concours set repeche = -1"_qs);
    rouvre();
    EXPECT_TRUE(visible(u"tirage_suivant"_qs));
    EXPECT_EQ(texte(u"tirage_suivant"_qs), u"Tirage tour N°4"_qs);
}

TEST_F(TirageResultats, DoubleClicEtEntreeTenueTirentUneFois)
{
    ouvre(8);
    prog.doubleClique(u"EResultats"_qs, u"tirage_suivant"_qs);
    EXPECT_EQ(tourpri(), 1);
    joueTour();
    QWidget *tirage = controle(u"tirage_suivant"_qs);
    tirage->setFocus();
    for (int fois = 0; fois < 30; ++fois) {
        QKeyEvent entree(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_qs, fois > 0);
        QApplication::sendEvent(QApplication::focusWidget(), &entree);
        QApplication::processEvents();
    }
    EXPECT_EQ(tourpri(), 2);
    EXPECT_EQ(matchs(2).size(), 4u);
    EXPECT_EQ(prog.focus(), u"Equipe1"_qs);
}

TEST_F(TirageResultats, AnnulerToutLeTirage)
{
    ouvre(8);
    tire();
    joueEtTire();
    const QRect zone = bouton();
    const Qt::KeyboardModifiers tout = Qt::ControlModifier | Qt::ShiftModifier;
    // Beside the zone, on another control, with other keys or the other button: nothing.
    presse({zone.x() + zone.width() - 1, zone.center().y()}, tout);
    presse({aCote().x(), zone.y() - 1}, tout);
    presse({aCote().x(), zone.y() + zone.height() + 1}, tout);
    presse(controle(u"imprimer"_qs)->geometry().center(), tout);
    presse(aCote(), Qt::NoModifier);
    presse(aCote(), Qt::ShiftModifier);
    presse(aCote(), tout | Qt::AltModifier);
    presse(aCote(), tout, Qt::LeftButton);
    EXPECT_EQ(tourpri(), 2);

    presse(aCote(), tout);
    EXPECT_EQ(tourpri(), 0);
    EXPECT_EQ(prog.partage().TourCourant, 0);
    EXPECT_TRUE(matchs(1).empty() && matchs(2).empty());
    EXPECT_EQ(texte(u"tour_P1"_qs), QString());
    EXPECT_TRUE(visible(u"tirage_suivant"_qs));
    EXPECT_EQ(texte(u"tirage_suivant"_qs), u"Tirage annulé Relancer"_qs);
    tire();
    EXPECT_EQ(tourpri(), 1);
    EXPECT_EQ(matchs(1).size(), 4u);
}

TEST_F(TirageResultats, UneCopieAvantCeQuiNeRevientPas)
{
    prog.avecCopies();
    ouvre(4);
    tire();
    joueTour();
    const QDir copies(prog.dossier() + u"/sauvegardes"_qs);
    const auto nombre = [&] { return copies.entryList({u"VarloBase-*.mdb"_qs}, QDir::Files).size(); };
    ASSERT_EQ(nombre(), 1) << "the one of the start";
    presse(aCote(), Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_EQ(nombre(), 2);
    store::BaseNative copie(copies.filePath(copies.entryList({u"*-annulation.mdb"_qs}, QDir::Files).value(0)),
                            motDePasseBase, store::BaseNative::Mode::LectureSeule);
    EXPECT_EQ(copie.valeurUnique(u"select count(*) from scores where score_1 = 13"_qs).entier(), 2);
    tire();
    presse(aCote(), Qt::ControlModifier);
    EXPECT_EQ(nombre(), 3);
    tire();
    // A draw made anew: the copy holds the one that it replaces.
    execute(u"update scores set lancee = 1"_qs);
    prog.partage().TourCourant = 0;
    controle(u"tirage_suivant"_qs)->show();
    prog.boites.attend(u"le tirage a déjà été fait. Voulez vous recommencer?"_qs, ReponseBoite::Oui);
    tire();
    ASSERT_EQ(nombre(), 4);
    store::BaseNative avant(copies.filePath(copies.entryList({u"*-tirage.mdb"_qs}, QDir::Files).value(0)),
                            motDePasseBase, store::BaseNative::Mode::LectureSeule);
    EXPECT_EQ(avant.valeurUnique(u"select count(*) from scores where lancee"_qs).entier(), 2);
    joueTour();
    prog.partage().TourCourant = 0;
    controle(u"tirage_suivant"_qs)->show();
    prog.boites.attend(u"Tirage Impossible, Il y a déjà des résultats de tombés"_qs);
    tire();

    // At a start without one the work goes on.
    prog.termine();
    ASSERT_TRUE(QDir(copies).removeRecursively());
    QFile obstacle(copies.path());
    ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
    prog.boites.attend(u"La copie de sécurité n'a pas pu être faite : le dossier sauvegardes ne peut pas être créé.\r\n"
                       u"Le travail continue sans elle."_qs);
    EXPECT_TRUE(prog.demarre());
}

TEST_F(TirageResultats, SansCopieRienNeSEffaceSansQuestion)
{
    ouvre(4);
    tire();
    joueEtTire();
    prog.verifieSansCopie([this] { presse(aCote(), Qt::ControlModifier); });
    prog.verifieSansCopie([this] { presse(aCote(), Qt::ControlModifier | Qt::ShiftModifier); });
    tire();
    prog.verifieSansCopie(
        [this] {
            prog.partage().TourCourant = 0;
            controle(u"tirage_suivant"_qs)->show();
            tire();
            EXPECT_EQ(visible(u"tirage_suivant"_qs), prog.partage().TourCourant == 0);
        },
        u"le tirage a déjà été fait. Voulez vous recommencer?"_qs);
}

TEST_F(TirageResultats, AnnulerLeTour)
{
    ouvre(8);
    tire();
    joueEtTire();
    const QRect zone = bouton();
    presse({forme()->width() - 1, zone.y() + zone.height()}, Qt::ControlModifier); // the far corner still counts
    EXPECT_EQ(prog.partage().TourCourant, 1);
    EXPECT_EQ(tourpri(), 0); // one lower than the program's own count
    EXPECT_EQ(matchs(1).size(), 4u);
    EXPECT_TRUE(matchs(2).empty());
    EXPECT_EQ(texte(u"tour_P1"_qs), u"annulé"_qs);
    EXPECT_FALSE(prog.formulaires().etat<EtatResultats>().JouesAJour
                 || prog.formulaires().etat<EtatResultats>().AttendusAJour);
    EXPECT_EQ(texte(u"tirage_suivant"_qs), u"Tour 2 annulé Relancer"_qs);
    EXPECT_TRUE(visible(u"tirage_suivant"_qs));
    tire();
    EXPECT_EQ(tourpri(), 2);
    EXPECT_EQ(matchs(2).size(), 4u);
}

TEST_F(TirageResultats, UnConcoursRouvertApresUneAnnulationReprendSonDernierTour)
{
    ouvre(16);
    tire();
    joueEtTire();
    joueEtTire();
    for (int reste = 2; reste >= 1; --reste) {
        presse(aCote(), Qt::ControlModifier);
        EXPECT_EQ(tourpri(), reste - 1); // one lower than the program's own count
        prog.ouvre(u"f_equipes"_qs); // takes the round of the file
        prog.ouvre(u"f_resultats"_qs);
        EXPECT_EQ(prog.partage().TourCourant, reste);
        EXPECT_EQ(tourpri(), reste);
        EXPECT_EQ(texte(u"tirage_suivant"_qs), u"Tirage tour N°%1"_qs.arg(reste + 1));
        EXPECT_TRUE(visible(u"tirage_suivant"_qs));
        EXPECT_TRUE(matchs(reste + 1).empty());
        EXPECT_EQ(matchs(reste).size(), 8u);
    }
    const std::vector<MatchEssai> joues = matchs(1);
    tire();
    EXPECT_EQ(tourpri(), 2);
    EXPECT_EQ(matchs(2).size(), 8u);
    EXPECT_EQ(matchs(1), joues);

    // So it is when the competition is chosen in the list.
    const qint32 concours = prog.partage().ConcoursCourant;
    execute(u"update concours set tourpri = 0"_qs);
    choisit(QString::number(concours));
    EXPECT_EQ(texte(u"Label2"_qs), u"Tour N° 2"_qs);
    EXPECT_EQ(tourpri(), 2);
}

TEST_F(TirageResultats, SansRencontreLeClicTireLeTour1QuoiQueDiseLeFichier)
{
    ouvre(8);
    const QString lancer = u"Lancer le concours"_qs;
    tire();
    presse(aCote(), Qt::ControlModifier);
    for (const int dit : {-1, 1, 3}) {
        execute(u"delete from scores; update concours set tourpri = %1"_qs.arg(dit));
        rouvre();
        EXPECT_EQ(texte(u"tirage_suivant"_qs), lancer);
        EXPECT_TRUE(visible(u"tirage_suivant"_qs));
        tire();
        EXPECT_EQ(tourpri(), 1) << dit;
        EXPECT_EQ(matchs(1).size(), 4u) << dit;
    }

    // Clicked too early, the button has put the competition at round 1 with no team.
    const qint32 vide = inscrit(0);
    prog.partage().ConcoursCourant = vide;
    rouvre();
    EXPECT_EQ(texte(u"tirage_suivant"_qs), lancer);
    tire();
    EXPECT_EQ(tourpri(), 1);
    execute(
        u"insert into equipes (concours, equipe, doublon, societe) select %1, equipe, doublon, societe from equipes;"
        u"insert into evolution (concours, equipe, principal) select %1, equipe, 1 from evolution"_qs.arg(vide));
    rouvre();
    EXPECT_EQ(texte(u"tirage_suivant"_qs), lancer);
    tire();
    EXPECT_EQ(tourpri(), 1);
    EXPECT_EQ(matchs(1).size(), 4u);
}

TEST_F(TirageResultats, ChangementDeConcours)
{
    ouvre(8);
    const qint32 huit = prog.partage().ConcoursCourant;
    const qint32 vide = inscrit(0);
    const qint32 lance = inscrit(4);
    rouvre();
    choisit(QString::number(huit));
    EXPECT_EQ(texte(u"listconcours"_qs), u"00000%1"_qs.arg(huit));
    EXPECT_EQ(textes(u"Label2 lieut datet typet categorie"_qs), u"8 équipe(s)|Sète|14/07/2026|Triplettes|Seniors"_qs);
    choisit(QString::number(vide));
    EXPECT_EQ(texte(u"Label2"_qs), u"0 équipes inscrites"_qs);
    EXPECT_EQ(prog.partage().ConcoursCourant, vide);
    choisit(QString::number(lance));
    tire();
    EXPECT_EQ(texte(u"Label2"_qs), u"Tour N° 1"_qs);
    joueEtTire();
    joueTour();
    EXPECT_EQ(texte(u"tour_P1"_qs), u"Concours terminé"_qs);
    choisit(QString::number(huit));
    EXPECT_EQ(texte(u"tour_P1"_qs), QString());
    choisit(QString::number(lance));
    EXPECT_EQ(texte(u"tour_P1"_qs), u"Concours terminé"_qs);
    const auto *combo = qobject_cast<QComboBox *>(controle(u"listconcours"_qs));
    EXPECT_EQ(combo->currentIndex(), combo->findText(texte(u"listconcours"_qs)));
    EXPECT_EQ(prog.valeur(u"select count(*) from scores where concours <> %1"_qs.arg(lance)).entier(), 0);
}

TEST_F(TirageResultats, UnNumeroNonValideNeRecoitPasLeResultat)
{
    ouvre(4);
    tire();
    const qint32 autre = prog.partage().ConcoursCourant;
    prog.partage().ConcoursCourant = inscrit(4);
    rouvre();
    tire();
    const auto saisit = [&](const QString &vers) {
        auto *liste = qobject_cast<QComboBox *>(controle(u"listconcours"_qs));
        liste->setFocus();
        liste->clearEditText();
        prog.tape(QString::number(autre));
        if (vers == u"Equipe1")
            controle(vers)->setFocus();
        else
            prog.clique(u"EResultats"_qs, vers);
        EXPECT_EQ(texte(u"listconcours"_qs), u"00000%1"_qs.arg(prog.partage().ConcoursCourant));
    };
    const QString desAutres = u"select count(*) from scores where score_1 is not null and concours = %1"_qs.arg(autre);
    saisit(u"Equipe1"_qs);
    joueTour();
    EXPECT_EQ(prog.valeur(desAutres).entier(), 0);
    EXPECT_TRUE(matchs(1)[0].score1 && matchs(1)[1].score1);

    // A view takes its matches from the list too, and leaves the focus there.
    saisit(u"VALIDATION"_qs);
    EXPECT_EQ(prog.controle<FlexGrid>(u"valresu"_qs, u"les_resultats"_qs)->Rows(), 3);
}

TEST_F(TirageResultats, UnConcoursRetireLaisseLaPlaceAuDernier)
{
    ouvre(8);
    const qint32 retire = inscrit(4);
    prog.partage().ConcoursCourant = retire;
    rouvre();
    tire();
    execute(u"delete from concours where concours = %1"_qs.arg(retire));
    rouvre();
    EXPECT_EQ(prog.partage().ConcoursCourant, 1);
    EXPECT_EQ(textes(u"listconcours Label2"_qs), u"000001|8  équipes"_qs);
    EXPECT_EQ(prog.partage().TourCourant, 0);
}

TEST_F(TirageResultats, ConcoursInconnuVerrouilleLaSaisie)
{
    ouvre(8);
    const qint32 courant = prog.partage().ConcoursCourant;
    prog.boites.attend(u"Ce numéro de concours est inconnu"_qs);
    choisit(u"77"_qs);
    prog.boites.verifie();
    for (const QString &nom : {u"Equipe1"_qs, u"Equipe2"_qs, u"Score1"_qs, u"Score2"_qs})
        EXPECT_TRUE(qobject_cast<QLineEdit *>(controle(nom))->isReadOnly());
    for (const QString &nom : {u"listconcours"_qs, u"datet"_qs, u"lieut"_qs, u"typet"_qs})
        EXPECT_EQ(texte(nom), QString());
    EXPECT_TRUE(forme()->isVisible());
    EXPECT_EQ(prog.partage().ConcoursCourant, courant);

    choisit(u"tous"_qs); // no number: emptied without a word
    EXPECT_EQ(texte(u"listconcours"_qs), QString());
    prog.tape(QString::number(courant));
    controle(u"Equipe1"_qs)->setFocus();
    EXPECT_EQ(texte(u"listconcours"_qs), QString()) << "no competition, until one is validated";
    EXPECT_TRUE(qobject_cast<QLineEdit *>(controle(u"Equipe1"_qs))->isReadOnly());
    choisit(QString::number(courant));
    EXPECT_FALSE(qobject_cast<QLineEdit *>(controle(u"Equipe1"_qs))->isReadOnly());
    EXPECT_EQ(texte(u"lieut"_qs), u"Sète"_qs);
}

TEST_F(TirageResultats, SansConcoursOuvreLEditeur)
{
    ASSERT_TRUE(prog.demarre());
    prog.ouvre(u"f_resultats"_qs);
    EXPECT_FALSE(prog.formulaires().estChargee(u"EResultats"_qs));
    EXPECT_TRUE(prog.formulaires().estVisible(u"Econcours"_qs));
}

} // namespace
