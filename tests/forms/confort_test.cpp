#include "app/langue.h"
#include "commun/affiche.h"
#include "commun/concours_en_base.h"
#include "commun/programme_pilote.h"
#include "ui/apparence.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTableView>

// What every form owes to the hand and the eye.

namespace {

const QString formes[] = {u"Accueil"_qs, u"Alerte"_qs,   u"Econcours"_qs,  u"Eequipes"_qs, u"Ejoueurs"_qs,
                          u"EResultats"_qs, u"FrmHorloge"_qs, u"Groupes"_qs, u"I_tirage"_qs, u"Listco"_qs,
                          u"Listesoc"_qs, u"Resusoc"_qs, u"langues"_qs,    u"listeq"_qs,   u"listjo"_qs,
                          u"manqres"_qs, u"palmares"_qs, u"valresu"_qs,    u"Détail_résultats"_qs};
constexpr int hauteurCible = 32; // pixels
constexpr double policeMinimale = 11; // points

/// What takes a click or the keyboard and shows it; not the parts that a control is made of.
bool estCommande(const QWidget &widget)
{
    const bool genre = qobject_cast<const QAbstractButton *>(&widget) != nullptr
        || qobject_cast<const QLineEdit *>(&widget) != nullptr || qobject_cast<const QComboBox *>(&widget) != nullptr
        || qobject_cast<const QAbstractScrollArea *>(&widget) != nullptr
        || qobject_cast<const QTabBar *>(&widget) != nullptr;
    return genre && !widget.objectName().isEmpty() && !widget.objectName().startsWith(u"qt_"_qs)
        && qobject_cast<QComboBox *>(widget.parentWidget()) == nullptr
        && qobject_cast<QTabBar *>(widget.parentWidget()) == nullptr
        && !widget.objectName().startsWith(u"ScrollLeft"_qs) && !widget.objectName().startsWith(u"ScrollRight"_qs);
}

double taillePolice(const QWidget &widget)
{
    const QFont police = widget.font();
    return police.pixelSize() > 0 ? police.pixelSize() * 0.75 : police.pointSizeF();
}

class Confort : public testing::Test
{
protected:
    void SetUp() override
    {
        appliqueApparence(*qApp);
        ASSERT_TRUE(prog.demarre());
        poseConcours(prog.base(), {.equipes = {{1, u"A"_qs}, {2, u"B"_qs}}});
    }

    /// The form \p nom, freshly loaded and shown, and the commands in it.
    QList<QWidget *> commandes(const QString &nom)
    {
        prog.formulaires().DechargeTout();
        prog.formulaires().Montre(nom);
        QCoreApplication::processEvents();
        forme = prog.formulaires().forme(nom);
        QList<QWidget *> trouvees;
        if (forme == nullptr)
            return trouvees;
        for (QWidget *widget : forme->findChildren<QWidget *>()) {
            if (estCommande(*widget))
                trouvees += widget;
        }
        return trouvees;
    }

    ProgrammePilote prog;
    Formulaire *forme = nullptr;
};

TEST_F(Confort, ChaqueCommandeEstUneCibleAisee)
{
    for (const QString &nom : formes) {
        const QList<QWidget *> toutes = commandes(nom);
        ASSERT_NE(forme, nullptr) << nom.toStdString();
        for (const QWidget *commande : toutes) {
            const bool serree = nom == u"palmares" && commande->height() < hauteurCible; // see the next test
            EXPECT_TRUE(serree || commande->height() >= hauteurCible)
                << nom.toStdString() << '.' << commande->objectName().toStdString() << ' ' << commande->height();
            const bool dedans = commande->parent() != forme || forme->rect().contains(commande->geometry());
            EXPECT_TRUE(commande->isHidden() || dedans)
                << nom.toStdString() << '.' << commande->objectName().toStdString();
            for (const QWidget *autre : toutes) {
                const bool ensemble = commande < autre && commande->isVisible() && autre->isVisible();
                EXPECT_FALSE(ensemble && commande->geometry().intersects(autre->geometry()))
                    << nom.toStdString() << '.' << commande->objectName().toStdString() << " and "
                    << autre->objectName().toStdString();
            }
        }
        for (const QTableView *grille : forme->findChildren<QTableView *>())
            EXPECT_GE(grille->verticalHeader()->defaultSectionSize(), hauteurCible) << nom.toStdString();
    }
}

TEST_F(Confort, LesChoixSerresDuPalmaresSePrennentDeHaut)
{
    commandes(u"palmares"_qs);
    auto *haut = prog.controle<QAbstractButton>(u"palmares"_qs, u"Option1"_qs);
    auto *bas = prog.controle<QAbstractButton>(u"palmares"_qs, u"detail"_qs);
    auto *paysage = prog.controle<QAbstractButton>(u"palmares"_qs, u"typedit"_qs);
    for (const int y : {haut->y() - 8, haut->geometry().bottom()}) {
        bas->click();
        ASSERT_FALSE(haut->isChecked());
        const QPoint point(haut->x() + 5, y);
        QWidget *cible = forme->childAt(point);
        QTest::mouseClick(cible == nullptr ? forme : cible, Qt::LeftButton, {},
                          cible == nullptr ? point : cible->mapFrom(forme, point));
        EXPECT_TRUE(haut->isChecked()) << y;
    }
    const bool avant = paysage->isChecked();
    QTest::mouseClick(forme, Qt::LeftButton, {}, paysage->pos() - QPoint(-5, 8));
    EXPECT_NE(paysage->isChecked(), avant);
    QTest::mouseClick(forme, Qt::RightButton, {}, paysage->pos() - QPoint(-5, 8));
    EXPECT_NE(paysage->isChecked(), avant);
    QTest::mouseClick(forme, Qt::LeftButton, {}, paysage->pos() - QPoint(-5, 9));
    EXPECT_NE(paysage->isChecked(), avant);
}

TEST_F(Confort, AucunTexteNEstPetit)
{
    for (const QString &nom : formes) {
        commandes(nom);
        for (const QWidget *widget : forme->findChildren<QWidget *>()) {
            EXPECT_GE(taillePolice(*widget), policeMinimale)
                << nom.toStdString() << '.' << widget->objectName().toStdString();
            EXPECT_FALSE(widget->styleSheet().contains(u"font-size"_qs)) << widget->objectName().toStdString();
        }
    }
    for (const char *classe : {"QMenu", "QMenuBar", "QTipLabel", "QMessageBox", "QHeaderView"})
        EXPECT_GE(QApplication::font(classe).pointSizeF(), policeMinimale) << classe;
}

TEST_F(Confort, ChaqueImageDitCeQuElleFaitDansChaqueLangue)
{
    QStringList dits[7];
    for (int langue = 1; langue <= 6; ++langue) {
        prog.base().Execute(u"update traduc set actif = false"_qs);
        prog.base().Execute(u"update traduc set actif = true where numero = %1"_qs.arg(langue));
        ChargeLangue(prog.partage());
        for (const QString &nom : formes) {
            for (const QWidget *commande : commandes(nom)) {
                const auto *bouton = qobject_cast<const QAbstractButton *>(commande);
                const QString infobulle = commande->toolTip();
                EXPECT_FALSE(bouton != nullptr && bouton->text().isEmpty() && !bouton->isCheckable()
                             && infobulle.isEmpty())
                    << nom.toStdString() << '.' << commande->objectName().toStdString();
                EXPECT_FALSE(infobulle.contains(u". "_qs)) << infobulle.toStdString();
                dits[langue] += infobulle;
            }
        }
    }
    EXPECT_GT(dits[1].size() - dits[1].count(QString()), 45);
    for (int langue = 2; langue <= 6; ++langue) {
        ASSERT_EQ(dits[langue].size(), dits[1].size());
        int memes = 0;
        for (qsizetype i = 0; i < dits[1].size(); ++i) {
            EXPECT_EQ(dits[langue][i].isEmpty(), dits[1][i].isEmpty()) << dits[1][i].toStdString();
            memes += !dits[1][i].isEmpty() && dits[langue][i] == dits[1][i];
        }
        EXPECT_LE(memes, 4) << langue; // "Liste" is German too
    }
}

} // namespace
