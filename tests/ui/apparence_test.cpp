#include "ui/apparence.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QIcon>
#include <QPalette>
#include <QRegularExpression>
#include <QSvgRenderer>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

double clarte(const QColor &couleur)
{
    const auto lineaire = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * lineaire(couleur.redF()) + 0.7152 * lineaire(couleur.greenF()) + 0.0722 * lineaire(couleur.blueF());
}

double contraste(const QColor &a, const QColor &b)
{
    const auto [sombre, clair] = std::minmax({clarte(a), clarte(b)});
    return (clair + 0.05) / (sombre + 0.05);
}

TEST(Apparence, EveryPictureDrawsAndTheSheetFindsItsOwn)
{
    appliqueApparence(*qApp);
    const QDir dossier(QStringLiteral(":/images"));
    const QStringList images = dossier.entryList();
    EXPECT_GE(images.size(), 15);
    for (const QString &image : images) {
        const QString chemin = dossier.filePath(image);
        EXPECT_TRUE(QSvgRenderer(chemin).isValid()) << qPrintable(chemin);
        EXPECT_FALSE(QIcon(chemin).pixmap(32).isNull()) << qPrintable(chemin);
    }
    EXPECT_FALSE(QApplication::windowIcon().isNull());

    auto urls = QRegularExpression(QStringLiteral("url\\(([^)]*)\\)")).globalMatch(qApp->styleSheet());
    ASSERT_TRUE(urls.hasNext());
    while (urls.hasNext()) {
        const QString chemin = urls.next().captured(1);
        EXPECT_TRUE(QFile::exists(chemin)) << qPrintable(chemin);
    }
}

TEST(Apparence, TextIsLargeAndStandsOut)
{
    appliqueApparence(*qApp);
    EXPECT_GE(QApplication::font().pointSizeF(), 11);
    auto tailles = QRegularExpression(QStringLiteral("font-size: (\\d+)pt")).globalMatch(qApp->styleSheet());
    ASSERT_TRUE(tailles.hasNext());
    while (tailles.hasNext())
        EXPECT_GE(tailles.next().captured(1).toInt(), 11);

    const QPalette palette = QApplication::palette();
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> paires[] = {
        {QPalette::WindowText, QPalette::Window},      {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},     {QPalette::ButtonText, QPalette::Button},
        {QPalette::HighlightedText, QPalette::Highlight}, {QPalette::ToolTipText, QPalette::ToolTipBase},
    };
    for (const auto groupe : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        for (const auto &[encre, fond] : paires)
            EXPECT_GE(contraste(palette.color(groupe, encre), palette.color(groupe, fond)), 4.5)
                << groupe << ' ' << encre << " on " << fond;
}

} // namespace
