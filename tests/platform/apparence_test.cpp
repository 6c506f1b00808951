#include "aspect/apparence.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QIcon>
#include <QRegularExpression>
#include <QSvgRenderer>

#include <gtest/gtest.h>

namespace {

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

} // namespace
