// A whole day without a mouse, and the keys that make it possible.
#include "app/langue.h"
#include "commun/affiche.h"
#include "commun/concours_en_base.h"
#include "commun/programme_pilote.h"
#include "platform/flexgrid.h"
#include "platform/touches_alt.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>

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
    touches({Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab});
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
    store::Instruction lecture(prog.base().native(),
                               u"select equipe_1 from scores where tour = ? and equipe_2 > 0"_qs);
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
    printf("focus %s %s %s\n", qPrintable(prog.focus()), qPrintable(texte(u"Label2"_qs)), qPrintable(texte(u"tour_P1"_qs)));
    joueTour(1);
    printf("focus %s %s %s\n", qPrintable(prog.focus()), qPrintable(texte(u"Label2"_qs)), qPrintable(texte(u"tour_P1"_qs)));
    alt(u"tirage_suivant"_qs);
    printf("focus %s %s %s\n", qPrintable(prog.focus()), qPrintable(texte(u"Label2"_qs)), qPrintable(texte(u"tour_P1"_qs)));
    alt(u"manquants"_qs);
    printf("fenetre %s\n", qPrintable(fenetre()));
    alt(u"VALIDATION"_qs);
    printf("fenetre %s\n", qPrintable(fenetre()));
    for (int i = 0; i < 5; ++i) {
        touche(Qt::Key_F6);
        printf("fenetre %s focus %s\n", qPrintable(fenetre()), qPrintable(prog.focus()));
    }
    joueTour(2);
    printf("focus %s %s %s\n", qPrintable(prog.focus()), qPrintable(texte(u"Label2"_qs)), qPrintable(texte(u"tour_P1"_qs)));
    alt(u"hit"_qs);
    printf("fenetre %s focus %s\n", qPrintable(fenetre()), qPrintable(prog.focus()));
    touches({Qt::Key_Down, Qt::Key_Down});
}

} // namespace
