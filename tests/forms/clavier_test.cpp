// A whole day without a mouse, and the keys that make it possible.
#include "app/manuel.h"
#include "commun/programme_pilote.h"
#include "fenetres/touches_alt.h"
#include "partage/langue.h"

#include <QDesktopServices>
#include <QMenu>
#include <QTextBrowser>

namespace {

class Clavier : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(prog.demarre()); }

    /// A key goes where a real one would: to the open menu, to the control with the focus, to the window without one.
    void touche(Qt::Key touche, Qt::KeyboardModifiers avec = Qt::NoModifier)
    {
        QApplication::processEvents();
        QWidget *porteur = QApplication::activePopupWidget();
        if (porteur == nullptr)
            porteur = QApplication::focusWidget();
        if (porteur == nullptr)
            porteur = QApplication::activeWindow();
        ASSERT_NE(porteur, nullptr);
        QTest::keyClick(porteur, touche, avec);
        QApplication::processEvents();
    }
    void touches(std::initializer_list<Qt::Key> suite)
    {
        for (const Qt::Key une : suite)
            touche(une);
    }
    /// Alt and the letter that stands on a control of the active window.
    void alt(const QString &nom)
    {
        for (const ToucheAlt &lettre : TouchesAlt(*QApplication::activeWindow()))
            if (lettre.controle != nullptr && lettre.controle->objectName() == nom)
                return touche(Qt::Key(lettre.signe.unicode()), Qt::AltModifier);
        FAIL() << "no Alt key for " << nom.toStdString();
    }
    QString fenetre() const
    {
        QApplication::processEvents();
        return QApplication::activeWindow() == nullptr ? QString() : QApplication::activeWindow()->objectName();
    }
    QString texte(const QString &nom)
    {
        const auto *etiquette = QApplication::activeWindow()->findChild<QLabel *>(nom);
        return etiquette == nullptr ? QString() : etiquette->text();
    }

    void creeConcours();
    void inscrit(int equipes);
    void joueTour(int tour);

    ProgrammePilote prog;
};

void Clavier::creeConcours()
{
    touches({Qt::Key_F10, Qt::Key_Return});
    ASSERT_EQ(fenetre(), u"Econcours"_qs);
    prog.tape(u"14/07/2026\nMarseille\nBoule d'or\n"_qs);
    ASSERT_EQ(prog.focus(), u"Combo1"_qs);
    touches(
        {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab});
    ASSERT_EQ(prog.focus(), u"ok"_qs);
    prog.boites.attend(prog.partage().mes(95));
    touche(Qt::Key_Space);
    prog.boites.verifie();
    ASSERT_EQ(prog.valeur(u"select type from concours"_qs).texte(), u"3 - Tête à tête"_qs);
}

void Clavier::inscrit(int equipes)
{
    touches({Qt::Key_F10, Qt::Key_Right, Qt::Key_Return});
    ASSERT_EQ(fenetre(), u"Eequipes"_qs);
    for (int equipe = 1; equipe <= equipes; ++equipe) {
        alt(u"NomJ_0"_qs);
        prog.tape(u"Nom%1\nAnne\n"_qs.arg(equipe));
        ASSERT_EQ(prog.focus(), u"Société"_qs);
        prog.tape(u"Club%1"_qs.arg(equipe));
        // The button is not pressed over the question that comes up on the way to it.
        prog.boites.attend(prog.partage().mes(92), ReponseBoite::Oui);
        alt(u"Okc"_qs);
        prog.boites.verifie();
        ASSERT_EQ(prog.valeur(u"select count(*) from equipes"_qs).entier(), equipe - 1);
        alt(u"Okc"_qs);
        ASSERT_EQ(prog.valeur(u"select count(*) from equipes"_qs).entier(), equipe);
    }
}

void Clavier::joueTour(int tour)
{
    store::Instruction lecture(prog.base().native(), u"select equipe_1 from scores where tour = ? and equipe_2 > 0"_qs);
    lecture.lie(1, tour);
    std::vector<qint64> equipes;
    while (lecture.avance())
        equipes.push_back(lecture.nombre(0));
    ASSERT_EQ(equipes.size(), 2U);
    for (const qint64 equipe : equipes)
        prog.tape(u"%1\n13\n6\n"_qs.arg(equipe));
}

TEST_F(Clavier, UneJourneeEntiere)
{
    creeConcours();
    inscrit(4);
    touches({Qt::Key_F10, Qt::Key_Right, Qt::Key_Right, Qt::Key_Return});
    ASSERT_EQ(fenetre(), u"EResultats"_qs);
    alt(u"tirage_suivant"_qs);
    joueTour(1);
    EXPECT_EQ(prog.focus(), u"Equipe1"_qs);
    alt(u"tirage_suivant"_qs);
    EXPECT_EQ(texte(u"Label2"_qs), u"Tour N° 2"_qs);

    // The sheets: the dialog is filled with the keyboard, and the choice of a printer given up.
    alt(u"imprimer"_qs);
    ASSERT_EQ(fenetre(), u"I_tirage"_qs);
    alt(u"Option1"_qs);
    prog.boites.attend(u"Impression annulée"_qs);
    alt(u"Imprime"_qs);
    alt(u"sortie"_qs);
    ASSERT_EQ(fenetre(), u"EResultats"_qs);

    // The views leave the keyboard to the entry; F6 goes round through them.
    alt(u"manquants"_qs);
    alt(u"VALIDATION"_qs);
    ASSERT_EQ(fenetre(), u"EResultats"_qs);
    QStringList vues;
    for (int i = 0; i < 4; ++i) {
        touche(Qt::Key_F6);
        vues += fenetre();
    }
    vues.sort();
    EXPECT_EQ(vues.join(u' '), u"EResultats Groupes manqres valresu"_qs);
    while (fenetre() != u"EResultats")
        touche(Qt::Key_F6, Qt::ShiftModifier);
    joueTour(2);
    EXPECT_EQ(texte(u"tour_P1"_qs), u"Concours terminé"_qs);

    alt(u"hit"_qs);
    ASSERT_EQ(fenetre(), u"palmares"_qs);
    const auto *grille = QApplication::activeWindow()->findChild<FlexGrid *>(u"Thonneur_1"_qs);
    ASSERT_NE(grille, nullptr);
    alt(u"Thonneur_1"_qs);
    touches({Qt::Key_Down, Qt::Key_Down});
    touche(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(std::pair(grille->Row(), grille->RowSel()), std::pair(2, 3));
    prog.boites.attend(u"Impression annulée"_qs);
    alt(u"imprimer"_qs);
    prog.boites.verifie();
}

/// What a click does in a grid, Enter does on its current row, and the menu key what a right click does.
TEST_F(Clavier, LesGrillesSeCliquentAuClavier)
{
    const qint32 concours = poseConcours(prog.base(), {.equipes = equipesDeClubs(2)});
    poseRencontres(prog.base(), concours, {{.tour = 1, .equipe1 = 1, .equipe2 = 2, .score1 = 13, .score2 = 7}});
    touches({Qt::Key_F10, Qt::Key_Right, Qt::Key_Right, Qt::Key_Return});
    alt(u"VALIDATION"_qs);
    touches({Qt::Key_F6, Qt::Key_Down, Qt::Key_Return});
    EXPECT_EQ(fenetre(), u"EResultats"_qs);
    EXPECT_EQ(prog.controle<QLineEdit>(u"EResultats"_qs, u"Score2"_qs)->text(), u"7"_qs);

    alt(u"hit"_qs);
    const auto *grille = QApplication::activeWindow()->findChild<FlexGrid *>(u"Thonneur_1"_qs);
    ASSERT_NE(grille, nullptr);
    alt(u"Thonneur_1"_qs);
    touches({Qt::Key_Down, Qt::Key_Right});
    EXPECT_EQ(grille->Text(), u"  1 (Club 1)  bat   2 (Club 2) "_qs);
    touche(Qt::Key_Menu);
    EXPECT_EQ(grille->TextMatrix(1, 1), u"  1 NOM1 P (Club 1)  bat   2 NOM2 P (Club 2) "_qs);
    touches({Qt::Key_Down, Qt::Key_Right});
    touche(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(fenetre(), u"Resusoc"_qs);
}

/// While Alt is held the letters stand over the controls; the key that follows takes them away.
TEST_F(Clavier, LesLettresSeMontrentTantQueAltEstTenue)
{
    touches({Qt::Key_F10, Qt::Key_Return});
    QWidget *forme = QApplication::activeWindow();
    const auto etiquettes = [forme] {
        return forme->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly).size();
    };
    const qsizetype sans = etiquettes();
    QTest::keyPress(QApplication::focusWidget(), Qt::Key_Alt, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return etiquettes() == sans + 1; }));
    alt(u"Text4"_qs);
    EXPECT_EQ(etiquettes(), sans);
    EXPECT_EQ(prog.focus(), u"Text4"_qs);
    // A letter that leads nowhere does nothing, and is not written either.
    QTest::keyClick(QApplication::focusWidget(), 'x', Qt::AltModifier);
    EXPECT_EQ(qobject_cast<QLineEdit *>(QApplication::focusWidget())->text(), QString());
    QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Alt);
    QTest::qWait(300);
    EXPECT_EQ(etiquettes(), sans);
}

TEST_F(Clavier, F1MontreLeManuel)
{
    prog.boites.attend(u"Le manuel manque"_qs);
    touche(Qt::Key_F1);
    prog.boites.verifie();

    QTextBrowser navigateur;
    QDesktopServices::setUrlHandler(u"file"_qs, &navigateur, "setSource");
    const QDir dossier(prog.dossier());
    for (const QString &papiers : {u"share/doc"_qs, u"bin/docs"_qs}) {
        ASSERT_TRUE(dossier.mkpath(u"bin"_qs) && dossier.mkpath(papiers));
        const QString page = dossier.filePath(papiers + u"/manuel.html"_qs);
        ASSERT_TRUE(QFile(page).open(QIODevice::WriteOnly));
        prog.programme().donneManuel(FichierManuel(dossier.filePath(u"bin"_qs), u"../share/doc"_qs));
        touches({Qt::Key_F10, Qt::Key_Return}); // from a form as from the main window
        touche(Qt::Key_F1);
        EXPECT_EQ(navigateur.source(), QUrl::fromLocalFile(page));
    }
    QDesktopServices::unsetUrlHandler(u"file"_qs);
}

} // namespace
