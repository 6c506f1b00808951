#include "grille/flexgrid.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QImage>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

QStringList colonne(const FlexGrid &grille, int numero)
{
    QStringList textes;
    for (int ligne = 1; ligne < grille.Rows(); ++ligne)
        textes << grille.TextMatrix(ligne, numero);
    return textes;
}

/// A shown grid of \p nombre rows, "club 1" and so on beside their numbers.
struct GrilleMontree : FlexGrid
{
    explicit GrilleMontree(int nombre)
    {
        setFormatString(QStringLiteral("<Club|>N°"));
        for (int i = 1; i <= nombre; ++i)
            AddItem(QStringLiteral("club %1\t%1").arg(i));
        resize(320, 400);
        show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(this));
    }

    QPoint milieu(int ligne, int numero) const { return visualRect(model()->index(ligne - 1, numero)).center(); }
    QList<int> lignesEclairees() const
    {
        QList<int> lignes;
        for (const QModelIndex &index : selectionModel()->selectedRows())
            lignes << index.row() + 1;
        std::sort(lignes.begin(), lignes.end());
        return lignes;
    }
};

TEST(FlexGrid, RowsAndCellsCountFromTheHeader)
{
    FlexGrid grille;
    grille.setFormatString(QStringLiteral("<Equipe|^Club |>Points"));
    grille.AddItem(QStringLiteral("2\tDupont\t13\ttrop"));
    grille.AddItem(QStringLiteral("1"));
    EXPECT_EQ(grille.Rows(), 3);
    EXPECT_EQ(grille.TextMatrix(0, 1), QStringLiteral("Club "));
    EXPECT_EQ(colonne(grille, 0), QStringList({"2", "1"}));
    EXPECT_EQ(colonne(grille, 2), QStringList({"13", ""}));

    grille.setFormatString(QString());
    EXPECT_EQ(grille.Cols(), 3) << "an empty format leaves things";
    grille.setFormatString(QStringLiteral("A|B"));
    EXPECT_EQ(grille.Cols(), 3) << "a shorter format takes no column away";
    EXPECT_EQ(grille.TextMatrix(0, 2), QStringLiteral("Points"));

    grille.setRow(1);
    grille.setRowSel(2);
    grille.setColSel(2);
    EXPECT_EQ(grille.Row(), 1);
    grille.setCol(2);
    EXPECT_EQ(grille.RowSel(), 1) << "a new current cell is the whole selection";
    grille.setText(QStringLiteral("ici"));
    EXPECT_EQ(colonne(grille, 2), QStringList({"ici", ""}));
    grille.setRow(2);
    grille.setRows(2);
    EXPECT_EQ(grille.Row(), 1) << "the last row takes the place of one that is gone";
    grille.setCols(2);
    EXPECT_EQ(grille.ColSel(), 1);
}

TEST(FlexGrid, WidthsFollowTheHeading)
{
    FlexGrid grille;
    grille.setFormatString(QStringLiteral("<Nom|<Nom                    |Tour"));
    EXPECT_GT(grille.ColWidth(1), 3 * grille.ColWidth(0)) << "blanks make room";
    grille.setColWidth(2, 7000);
    EXPECT_EQ(grille.ColWidth(2), 7000);
    grille.setColWidth(0, 600);
    grille.resize(800, 300);
    grille.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&grille));
    EXPECT_EQ(grille.columnWidth(0), 40) << "15 twips to the pixel";
}

TEST(FlexGrid, AlignmentComesFromTheFormat)
{
    FlexGrid grille;
    grille.setFormatString(QStringLiteral(">Clt|Equ.|<Nom|^J"));
    grille.AddItem(QStringLiteral("a\t12\t12\tx"));
    grille.AddItem(QStringLiteral("a\tExempt\t\t"));
    QCoreApplication::processEvents();
    const auto cote = [&](int ligne, int numero) {
        const QVariant valeur = grille.model()->index(ligne - 1, numero).data(Qt::TextAlignmentRole);
        return valeur.value<Qt::Alignment>() & Qt::AlignHorizontal_Mask;
    };
    EXPECT_EQ(cote(1, 0), Qt::AlignRight);
    EXPECT_EQ(cote(1, 1), Qt::AlignRight) << "a number stands right where nothing is said";
    EXPECT_EQ(cote(2, 1), Qt::AlignLeft);
    EXPECT_EQ(cote(1, 2), Qt::AlignLeft);
    EXPECT_EQ(cote(1, 3), Qt::AlignHCenter);
}

TEST(FlexGrid, SortsByKindDirectionAndRange)
{
    FlexGrid grille;
    grille.setCols(2);
    for (const char *ligne : {"10\ta", "9\tÉtoile", "x\tdupont", "-1\tDURAND", " \tblanc", "9\tb", "1a\tetang"})
        grille.AddItem(QString::fromUtf8(ligne));

    grille.setSort(FlexGrid::GeneriqueCroissant);
    EXPECT_EQ(colonne(grille, 0), QStringList({" ", "-1", "9", "9", "10", "1a", "x"})) << "blanks, then numbers";
    EXPECT_EQ(grille.TextMatrix(3, 1), QStringLiteral("Étoile")) << "equal rows keep their order";
    grille.setSort(FlexGrid::GeneriqueDecroissant);
    EXPECT_EQ(colonne(grille, 0), QStringList({"x", "1a", "10", "9", "9", "-1", " "}));
    grille.setRows(grille.Rows() - 1);
    grille.setCol(1);
    grille.setSort(FlexGrid::GeneriqueCroissant);
    EXPECT_EQ(colonne(grille, 1), QStringList({"a", "b", "dupont", "DURAND", "etang", "Étoile"}));

    grille.setCol(0);
    grille.setColSel(1);
    grille.setSort(FlexGrid::GeneriqueDecroissant);
    EXPECT_EQ(grille.TextMatrix(4, 1), QStringLiteral("Étoile")) << "the second column decides between equals";

    grille.setRow(2);
    grille.setCol(0);
    grille.setRowSel(4);
    grille.setSort(FlexGrid::GeneriqueCroissant);
    EXPECT_EQ(colonne(grille, 0), QStringList({"x", "9", "10", "1a", "9", "-1"})) << "selected rows only";
}

TEST(FlexGrid, ColoursTravelWithTheirRows)
{
    GrilleMontree grille(3);
    grille.setRow(1);
    grille.setCol(0);
    grille.setCellBackColor(16744448);
    EXPECT_EQ(grille.CellBackColor(), 16744448U);
    EXPECT_EQ(FlexGrid::Couleur(0, 128, 255), 16744448U);
    grille.setSort(FlexGrid::GeneriqueDecroissant);
    EXPECT_EQ(grille.CellBackColor(3, 0), 16744448U);
    EXPECT_EQ(grille.CellBackColor(1, 0), FlexGrid::FondFenetre);

    // On screen: blue-green-red order, kept on a selected row, and gone when it is taken away.
    grille.setRow(3);
    const auto pixel = [&] {
        const QPoint coin = grille.visualRect(grille.model()->index(2, 0)).bottomRight() - QPoint(3, 3);
        return grille.viewport()->grab().toImage().pixelColor(coin);
    };
    EXPECT_EQ(pixel(), QColor(0, 128, 255));
    grille.setCellBackColor(3, 0, FlexGrid::FondFenetre);
    EXPECT_NE(pixel(), QColor(0, 128, 255));
}

TEST(FlexGrid, MouseSelectsAndTells)
{
    GrilleMontree grille(8);
    QSignalSpy presses(&grille, &FlexGrid::mousePresse);
    QSignalSpy relaches(&grille, &FlexGrid::mouseRelache);
    QWidget *vue = grille.viewport();

    QTest::mouseClick(vue, Qt::LeftButton, {}, grille.milieu(3, 1));
    EXPECT_EQ(grille.Row(), 3);
    EXPECT_EQ(grille.Col(), 1);
    ASSERT_EQ(relaches.size(), 1);
    EXPECT_EQ(relaches.last()[2].toInt(), 3);
    EXPECT_EQ(relaches.last()[3].toInt(), 1);

    QTest::mouseClick(vue, Qt::LeftButton, Qt::ShiftModifier, grille.milieu(5, 0));
    EXPECT_EQ(grille.Row(), 3);
    EXPECT_EQ(grille.RowSel(), 5);
    EXPECT_EQ(grille.lignesEclairees(), QList<int>({3, 4, 5}));

    QTest::mouseClick(vue, Qt::RightButton, {}, grille.milieu(7, 0));
    EXPECT_EQ(grille.Row(), 3) << "the right button selects nothing";
    EXPECT_EQ(presses.last()[2].toInt(), 7);
    EXPECT_EQ(presses.last()[0].value<Qt::MouseButton>(), Qt::RightButton);

    QTest::mouseClick(vue, Qt::LeftButton, Qt::ControlModifier, grille.milieu(6, 0));
    EXPECT_EQ(grille.Row(), 6);
    EXPECT_EQ(presses.last()[1].value<Qt::KeyboardModifiers>(), Qt::ControlModifier);

    QTest::mouseClick(vue, Qt::LeftButton, {}, QPoint(20, 380 - grille.horizontalHeader()->height()));
    EXPECT_EQ(grille.Row(), 6) << "below the last row there is nothing to select";
    EXPECT_EQ(presses.last()[2].toInt(), -1);

    QTest::mouseClick(grille.horizontalHeader()->viewport(), Qt::RightButton, {}, QPoint(5, 5));
    EXPECT_EQ(presses.last()[2].toInt(), 0);
    EXPECT_EQ(presses.last()[3].toInt(), 0);
    EXPECT_EQ(grille.Row(), 6);

    QTest::mousePress(vue, Qt::LeftButton, {}, grille.milieu(4, 0));
    QTest::mouseMove(vue, grille.milieu(2, 1));
    QTest::mouseRelease(vue, Qt::LeftButton, {}, grille.milieu(2, 1));
    EXPECT_EQ(grille.Row(), 4);
    EXPECT_EQ(grille.RowSel(), 2) << "a drag upwards leaves the far end above";
    QTest::mouseMove(vue, grille.milieu(8, 0));
    EXPECT_EQ(grille.RowSel(), 2);
}

TEST(FlexGrid, KeysMoveAndReachTheForm)
{
    GrilleMontree grille(300);
    QList<int> recues;
    QObject::connect(&grille, &FlexGrid::touche, &grille, [&](QKeyEvent *e) { recues << e->key(); });
    grille.setFocus();
    QTest::keyClick(&grille, Qt::Key_Down);
    EXPECT_EQ(grille.Row(), 1) << "from the header, the first key leads to the first row";
    QTest::keyClick(&grille, Qt::Key_Down);
    QTest::keyClick(&grille, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(grille.Row(), 2);
    EXPECT_EQ(grille.RowSel(), 3);
    QTest::keyClick(&grille, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(grille.Row(), 300);
    EXPECT_GT(grille.TopRow(), 200);
    QTest::keyClick(&grille, Qt::Key_C);
    EXPECT_EQ(grille.Row(), 300) << "a letter is the form's business";
    EXPECT_EQ(recues.last(), int(Qt::Key_C));
    EXPECT_EQ(recues.count(Qt::Key_Down), 3) << "keys that move the selection are told too";
}

TEST(FlexGrid, RefillKeepsPlaceAndRedrawHoldsThePicture)
{
    GrilleMontree grille(2000);
    grille.setTopRow(1500);
    EXPECT_EQ(grille.TopRow(), 1500);
    grille.setRow(1500);
    grille.setText(QStringLiteral("changé"));
    EXPECT_EQ(grille.TopRow(), 1500);

    const QImage avant = grille.grab().toImage();
    grille.setRedraw(false);
    grille.setRows(1);
    for (int i = 1; i <= 2000; ++i)
        grille.AddItem(QStringLiteral("autre %1").arg(i));
    QCoreApplication::processEvents();
    EXPECT_EQ(grille.model()->rowCount(), 2000);
    grille.setRedraw(true);
    EXPECT_EQ(grille.TopRow(), 1500);
    EXPECT_NE(grille.grab().toImage(), avant);
    grille.setTopRow(2000);
    EXPECT_LT(grille.TopRow(), 2000) << "the last rows fill the grid";
    EXPECT_EQ(grille.verticalScrollBar()->value(), grille.verticalScrollBar()->maximum());
}

TEST(FlexGrid, ModelKeepsItsPromisesToTheView)
{
    GrilleMontree grille(20);
    QAbstractItemModelTester temoin(grille.model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (int tour = 0; tour < 3; ++tour) {
        grille.setRow(grille.Rows() - 1);
        grille.setRows(grille.Rows() - 1);
        grille.setCols(4);
        grille.grab();
        grille.setRows(5);
        grille.setSort(FlexGrid::GeneriqueDecroissant);
        grille.setTextMatrix(2, 3, QStringLiteral("x"));
        grille.setCols(2);
        grille.grab();
        EXPECT_EQ(grille.verticalHeader()->count(), 4) << "a picture taken at once shows the rows of now";
        grille.setTextMatrix(0, 0, QStringLiteral("Titre"));
        grille.AddItem(QStringLiteral("dernier"));
        QCoreApplication::processEvents();
        EXPECT_EQ(grille.lignesEclairees(), QList<int>({4}));
    }
}

} // namespace
