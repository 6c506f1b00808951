#include "formes_ouvertes.h"

#include <QHeaderView>
#include <QListWidget>
#include <QTabBar>
#include <QTableView>

// What every form owes to the hand and the eye.

namespace {

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

/// What of \p controle would not be seen whole; empty when all is.
QString coupe(const QWidget &controle)
{
    const auto *etiquette = qobject_cast<const QLabel *>(&controle);
    const auto *bouton = qobject_cast<const QAbstractButton *>(&controle);
    const QString texte = etiquette != nullptr ? etiquette->text() : bouton != nullptr ? bouton->text() : QString();
    if (texte.trimmed().isEmpty() || (etiquette != nullptr && etiquette->wordWrap()))
        return {};
    // A button may do with less room around its text than it would like.
    const int bords = bouton == nullptr || bouton->isCheckable() ? 0 : 16;
    const int manque = controle.sizeHint().width() - bords - controle.width();
    return manque <= 0 ? QString() : u"%1 « %2 » : %3 px"_qs.arg(controle.objectName(), texte).arg(manque);
}

class Confort : public FormesOuvertes
{
protected:
    static void verifieCibles(const QWidget &forme, const QList<QWidget *> &commandes);
    static void verifieTextes(const QWidget &forme);
};

/// Each command is large enough for a finger, inside the form, and off the others.
void Confort::verifieCibles(const QWidget &forme, const QList<QWidget *> &commandes)
{
    for (const QWidget *commande : commandes) {
        SCOPED_TRACE(commande->objectName().toStdString());
        const bool serree = forme.objectName() == u"palmares"; // see LesChoixSerresDuPalmares
        EXPECT_TRUE(serree || commande->height() >= hauteurCible) << commande->height();
        const bool dedans = commande->parent() != &forme || forme.rect().contains(commande->geometry());
        EXPECT_TRUE(commande->isHidden() || dedans);
        for (const QWidget *autre : commandes) {
            const bool ensemble = commande < autre && commande->isVisible() && autre->isVisible();
            EXPECT_FALSE(ensemble && commande->geometry().intersects(autre->geometry()))
                << "and " << autre->objectName().toStdString();
        }
    }
    for (const QTableView *grille : forme.findChildren<QTableView *>())
        EXPECT_GE(grille->verticalHeader()->defaultSectionSize(), hauteurCible);
}

/// No text is small, none is cut.
void Confort::verifieTextes(const QWidget &forme)
{
    for (const QWidget *widget : forme.findChildren<QWidget *>()) {
        EXPECT_GE(taillePolice(*widget), policeMinimale) << widget->objectName().toStdString();
        EXPECT_FALSE(widget->styleSheet().contains(u"font-size"_qs)) << widget->objectName().toStdString();
        EXPECT_TRUE(!widget->isVisible() || coupe(*widget).isEmpty()) << coupe(*widget).toStdString();
    }
}

TEST_F(Confort, ChaqueFormeDansChaqueLangue)
{
    QStringList dits[langues + 1];
    for (int numero = 1; numero <= langues; ++numero) {
        langue(numero);
        for (const QString &nom : noms()) {
            SCOPED_TRACE(nom.toStdString() + " in language " + std::to_string(numero));
            const QWidget *forme = ouvre(nom);
            ASSERT_TRUE(forme != nullptr && forme->isVisible());
            QList<QWidget *> commandes = forme->findChildren<QWidget *>();
            commandes.removeIf([](const QWidget *widget) { return !estCommande(*widget); });
            verifieCibles(*forme, commandes);
            verifieTextes(*forme);
            for (const QWidget *commande : commandes) {
                const auto *bouton = qobject_cast<const QAbstractButton *>(commande);
                const QString infobulle = commande->toolTip();
                EXPECT_FALSE(bouton != nullptr && bouton->text().isEmpty() && !bouton->isCheckable()
                             && infobulle.isEmpty())
                    << commande->objectName().toStdString();
                EXPECT_FALSE(infobulle.contains(u". "_qs)) << infobulle.toStdString();
                dits[numero] += infobulle;
            }
        }
    }
    for (const char *classe : {"QMenu", "QMenuBar", "QTipLabel", "QMessageBox", "QHeaderView"})
        EXPECT_GE(QApplication::font(classe).pointSizeF(), policeMinimale) << classe;
    EXPECT_GT(dits[1].size() - dits[1].count(QString()), 45);
    for (int numero = 2; numero <= langues; ++numero) {
        ASSERT_EQ(dits[numero].size(), dits[1].size());
        int memes = 0;
        for (qsizetype i = 0; i < dits[1].size(); ++i) {
            EXPECT_EQ(dits[numero][i].isEmpty(), dits[1][i].isEmpty()) << dits[1][i].toStdString();
            memes += !dits[1][i].isEmpty() && dits[numero][i] == dits[1][i];
        }
        EXPECT_LE(memes, 4) << numero; // "Liste" is German too
    }
}

TEST_F(Confort, LesChoixSerresDuPalmaresSePrennentDeHaut)
{
    QWidget *forme = ouvre(u"palmares"_qs);
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

} // namespace
