#include "fenetres/echap_tenue.h"
#include "fenetres/formulaires.h"
#include "papier/imprimante.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

/// Answers every box with OK and notes what was shown.
class BoitesNotees : public Boites
{
public:
    ReponseBoite MsgBox(const QString &texte, int, const QString &) override
    {
        compte();
        vues += texte;
        return ReponseBoite::OK;
    }
    std::optional<QString> InputBox(const QString &, const QString &, std::optional<QPoint>) override { return {}; }
    std::unique_ptr<Destination> ShowPrinter() override { return nullptr; }
    QString ShowOpen(const BoiteFichier &dialogue) override { return dialogue.FileName; }
    QString ShowSave(const BoiteFichier &) override { return {}; }
    std::optional<int> Choisit(const BoiteListe &) override { return {}; }

    QStringList vues;
};

/// A form of three fields, a combo and a button that notes what its handlers are told.
class Essai : public Formulaire
{
public:
    Essai(const Contexte &contexte, QWidget *parent, const QString &nom, QStringList &journal)
        : Formulaire(contexte, parent)
        , m_journal(journal)
    {
        setObjectName(nom);
        resize(300, 200);
        int y = 0;
        for (QWidget *controle : {static_cast<QWidget *>(a), static_cast<QWidget *>(b), static_cast<QWidget *>(c),
                                  static_cast<QWidget *>(combo), static_cast<QWidget *>(bouton)})
            controle->setGeometry(10, y += 35, 120, 30);
        combo->setEditable(true);
        prepareControles();
        for (QWidget *controle :
             {static_cast<QWidget *>(a), static_cast<QWidget *>(b), static_cast<QWidget *>(combo)}) {
            const QString qui = controle->objectName();
            surGotFocus(controle, [=, this] { note(u'+' + qui); });
            surLostFocus(controle, [=, this] {
                note(u'-' + qui);
                if (auQuitter)
                    auQuitter(qui);
            });
        }
        surKeyDown(combo, [this](int code, int maj) { note(u"touche %1/%2"_qs.arg(code).arg(maj)); });
        surKeyDown(a, [this](int code, int) {
            note(u"touche %1"_qs.arg(code));
            if (code == Touche::Entree)
                SetFocus(b);
        });
        surClick(bouton, [this] {
            note(u"clic"_qs);
            if (auClic)
                auClic();
        });
    }

    void Form_Activate() override { note(u"active "_qs + Name()); }
    void Form_Unload() override { note(u"unload "_qs + Name()); }
    void note(const QString &quoi) { m_journal += quoi; }
    void boite(const QString &texte) { MsgBox(texte); }

    QLineEdit *a = champ(u"a"_qs);
    QLineEdit *b = champ(u"b"_qs);
    QLineEdit *c = champ(u"c"_qs);
    QComboBox *combo = nomme(new QComboBox(this), u"combo"_qs);
    QPushButton *bouton = nomme(new QPushButton(this), u"bouton"_qs);
    std::function<void(const QString &)> auQuitter;
    std::function<void()> auClic;

private:
    template<typename T>
    static T *nomme(T *controle, const QString &nom)
    {
        controle->setObjectName(nom);
        return controle;
    }
    QLineEdit *champ(const QString &nom) { return nomme(new QLineEdit(this), nom); }

    QStringList &m_journal;
};

class FormulaireEssai : public testing::Test
{
protected:
    FormulaireEssai()
    {
        for (const QString &nom : {u"F1"_qs, u"F2"_qs})
            formes.enregistre(NomForme(nom), [this, nom](const Contexte &contexte, QWidget *parent) {
                return new Essai(contexte, parent, nom, journal);
            });
        formes.prepare({partage, formes, boites}, &fenetre);
        fenetre.resize(800, 600);
        fenetre.show();
        formes.Montre(NomForme(u"F1"));
        SetFocus(f(u"F1"_qs)->a);
        lu();
    }

    Essai *f(const QString &nom) { return static_cast<Essai *>(formes.forme(nom)); }
    std::string lu()
    {
        QApplication::processEvents();
        const QString texte = journal.join(u' ');
        journal.clear();
        return texte.toStdString();
    }
    /// A click as the desktop delivers it, through the window.
    static void clique(QWidget *widget)
    {
        QTest::mouseClick(widget->window()->windowHandle(), Qt::LeftButton, {},
                          widget->mapTo(widget->window(), widget->rect().center()));
    }

    AleaFixe alea{1};
    Horloge horloge;
    Partage partage{u"."_qs, alea, horloge};
    BoitesNotees boites;
    QStringList journal;
    QWidget fenetre;
    Formulaires formes;
};

} // namespace

TEST_F(FormulaireEssai, RunsLostFocusThenGotFocusAcrossForms)
{
    Essai *f1 = f(u"F1"_qs);
    QTest::keyClick(f1->a, Qt::Key_Return);
    EXPECT_EQ(lu(), "touche 13 -a +b");
    SetFocus(f1->combo);
    EXPECT_EQ(lu(), "-b +combo");
    formes.Montre(NomForme(u"F2"));
    SetFocus(f(u"F2"_qs)->a);
    EXPECT_TRUE(lu().starts_with("active F2 -combo +a"));
    SetFocus(f1->combo);
    EXPECT_EQ(lu(), "active F1 -a +combo");
}

TEST_F(FormulaireEssai, APlaceReckonedWithoutTheFrameIsReckonedAgainWithIt)
{
    // Nothing on the screen has a frame when the first form finds its place.
    formes.DechargeTout();
    fenetre.hide();
    Formulaires neuves;
    neuves.enregistre(NomForme(u"F3"), [this](const Contexte &contexte, QWidget *parent) {
        return new Essai(contexte, parent, u"F3"_qs, journal);
    });
    neuves.prepare({partage, neuves, boites}, &fenetre);
    Formulaire *f3 = neuves.Charge(NomForme(u"F3"));
    int fois = 0;
    f3->place([&] {
        ++fois;
        f3->Move(1500, 9000 - 2 * f3->Height());
    });
    EXPECT_EQ(f3->Height(), 200 * 15);
    neuves.Montre(NomForme(u"F3"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return fois == 2; }));
    ASSERT_GT(f3->Height(), 200 * 15);
    EXPECT_EQ(f3->frameGeometry().top(), (9000 - 2 * f3->Height()) / 15);
    // Afterwards it stays where the operator takes it.
    f3->move(300, 300);
    QApplication::processEvents();
    EXPECT_EQ(fois, 2);
    EXPECT_EQ(f3->pos(), QPoint(300, 300));
}

TEST_F(FormulaireEssai, AHandlerMayTakeTheFocusBackOrElsewhere)
{
    Essai *f1 = f(u"F1"_qs);
    f1->auQuitter = [&](const QString &) { SetFocus(f1->a); };
    SetFocus(f1->b);
    EXPECT_EQ(lu(), "-a +a") << "b never had the focus, so it loses none";
    EXPECT_TRUE(f1->a->hasFocus());
    f1->auQuitter = [&](const QString &) { SetFocus(f1->combo); };
    SetFocus(f1->b);
    EXPECT_EQ(lu(), "-a +combo");
    EXPECT_TRUE(f1->combo->hasFocus());
}

TEST_F(FormulaireEssai, AClickThatABoxHasOvertakenIsNotCarriedOut)
{
    Essai *f1 = f(u"F1"_qs);
    clique(f1->bouton);
    EXPECT_EQ(lu(), "-a clic");
    SetFocus(f1->a);
    f1->auQuitter = [&](const QString &) { f1->boite(u"refus"_qs); };
    lu();
    clique(f1->bouton);
    EXPECT_EQ(lu(), "-a");
    EXPECT_EQ(boites.vues, QStringList{u"refus"_qs});
    clique(f1->bouton);
    EXPECT_EQ(lu(), "clic");
}

TEST_F(FormulaireEssai, EnterClicksAButtonOnceHoweverLongItIsHeld)
{
    Essai *f1 = f(u"F1"_qs);
    SetFocus(f1->bouton);
    lu();
    for (const bool repete : {false, true, true, true}) {
        QKeyEvent enfonce(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_qs, repete);
        QApplication::sendEvent(f1->bouton, &enfonce);
    }
    EXPECT_EQ(lu(), "clic");
    f1->auClic = [f1] { f1->bouton->hide(); };
    QTest::mouseClick(f1->bouton, Qt::LeftButton);
    QTest::mouseClick(f1->bouton, Qt::LeftButton);
    EXPECT_EQ(lu(), "clic +a") << "the second half of a double click meets a hidden button";
}

TEST_F(FormulaireEssai, GivesKeysToTheControlUnlessTheyAreEnterOrTheFocusHasGone)
{
    Essai *f1 = f(u"F1"_qs);
    SetFocus(f1->combo);
    lu();
    QTest::keyClicks(f1->combo, u"12"_qs);
    QTest::keyClick(f1->combo, Qt::Key_Right, Qt::ShiftModifier | Qt::ControlModifier);
    QTest::keyClick(f1->combo, Qt::Key_Return);
    EXPECT_EQ(f1->combo->currentText(), u"12");
    EXPECT_EQ(f1->combo->count(), 0) << "what is typed does not become a line of the list";
    EXPECT_EQ(lu(), "touche 49/0 touche 50/0 touche -1/1 touche -1/3 touche 39/3 touche 13/0");
}

TEST_F(FormulaireEssai, ShowsAFailureOnceAndGoesOn)
{
    Essai *f1 = f(u"F1"_qs);
    f1->auClic = [] { throw store::Erreur(13, u"Le disque est plein."_qs); };
    clique(f1->bouton);
    f1->auClic = [] { throw std::out_of_range("hors de la table"); };
    clique(f1->bouton);
    f1->auClic = [f1] { f1->controle<QComboBox>(u"b"_qs)->clear(); }; // there is a field of that name, and no list
    clique(f1->bouton);
    f1->auClic = nullptr;
    clique(f1->bouton);
    EXPECT_EQ(lu(), "-a clic clic clic clic");
    EXPECT_EQ(boites.vues.join(u'|'),
              u"Erreur 13 : Le disque est plein.|Erreur du programme : hors de la table|"
              u"Erreur du programme : La fenêtre F1 n'a pas de champ b.");
}

TEST_F(FormulaireEssai, UnloadsByNameEvenFromWithinAndPassesOverUnknownNames)
{
    Essai *f1 = f(u"F1"_qs);
    f1->auClic = [this] { formes.Decharge({NomForme(u"F1"), NomForme(u"nulle")}); };
    clique(f1->bouton);
    EXPECT_EQ(lu(), "-a clic unload F1");
    EXPECT_FALSE(formes.estChargee(u"F1"_qs));
    formes.Montre(NomForme(u"nulle"));
    formes.Cache(NomForme(u"nulle"));
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    formes.Montre(NomForme(u"F1"));
    EXPECT_TRUE(lu().starts_with("active F1"));
    formes.forme(u"F1"_qs)->close();
    EXPECT_FALSE(formes.estChargee(u"F1"_qs));
}

TEST_F(FormulaireEssai, KeepsControlsInProportionByWholePercents)
{
    Essai *f1 = f(u"F1"_qs);
    Redimensionnement module;
    module.RedimForm(*f1);
    const QRect depart = f1->b->geometry();
    f1->resize(450, 400);
    module.RedimForm(*f1);
    EXPECT_EQ(f1->b->geometry(),
              QRect(depart.x() * 3 / 2, depart.y() * 2, depart.width() * 3 / 2, depart.height() * 2));
    for (int i = 0; i < 200; ++i) {
        f1->resize(300 + i, 200 + i);
        module.RedimForm(*f1);
    }
    f1->c->move(-5000 + f1->c->x(), f1->c->y());
    f1->resize(301, 200);
    module.RedimForm(*f1);
    EXPECT_EQ(f1->b->geometry(), depart) << "one pixel more is no whole percent, and nothing has accumulated";
    EXPECT_EQ(f1->c->x(), 10 - 5000) << "parked, and still so";
}

TEST(Boites, EnterPressesTheButtonAskedForAndAHeldEscapeNone)
{
    BoitesQt deLEcran;
    Boites &boites = deLEcran;
    const auto reponse = [&](int drapeaux, const std::function<void(QWidget *)> &touches) {
        QTimer::singleShot(0, qApp, [&] { touches(QApplication::activeModalWidget()); });
        return boites.MsgBox(u"?"_qs, drapeaux);
    };
    const auto entree = [](QWidget *boite) { QTest::keyClick(boite, Qt::Key_Return); };
    EXPECT_EQ(reponse(vbYesNo, entree), ReponseBoite::Oui);
    EXPECT_EQ(reponse(vbYesNo | vbDefaultButton2, entree), ReponseBoite::Non);

    const EchapTenue echap([] {});
    const auto echapPuisEntree = [&](QWidget *boite) {
        QKeyEvent repetee(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, true);
        QApplication::sendEvent(boite, &repetee);
        if (boite->isVisible())
            entree(boite);
    };
    EXPECT_EQ(reponse(vbYesNo, echapPuisEntree), ReponseBoite::Oui);
    EXPECT_EQ(reponse(vbYesNo, [](QWidget *boite) { QTest::keyClick(boite, Qt::Key_Escape); }), ReponseBoite::Non);
}
