#include "aspect/apparence.h"

#include <QApplication>
#include <QFile>
#include <QFontDatabase>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QStyleFactory>
#include <QTranslator>

namespace {

const QString nomTraduction = QStringLiteral("traduction");
constexpr const char *proprieteLangue = "langue";

QFont policeLisible()
{
    const QStringList presentes = QFontDatabase::families();
    for (const char *nom : {"Noto Sans", "Segoe UI", "Open Sans", "DejaVu Sans", "Liberation Sans"})
        if (const auto famille = QString::fromLatin1(nom); presentes.contains(famille))
            return QFont(famille, 11);
    QFont police;
    police.setPointSize(11);
    return police;
}

QPalette couleurs()
{
    const QColor encre(0x1B, 0x2A, 0x36);
    const QColor eteinte(0x5A, 0x66, 0x70);
    const QColor accent(0x1F, 0x5A, 0x8C);
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0xEE, 0xF2, 0xF5));
    palette.setColor(QPalette::WindowText, encre);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xF2, 0xF6, 0xF9));
    palette.setColor(QPalette::Text, encre);
    palette.setColor(QPalette::Button, QColor(0xF7, 0xF9, 0xFA));
    palette.setColor(QPalette::ButtonText, encre);
    palette.setColor(QPalette::PlaceholderText, eteinte);
    palette.setColor(QPalette::ToolTipBase, QColor(0x22, 0x38, 0x4A));
    palette.setColor(QPalette::ToolTipText, Qt::white);
    // The chosen row stays as clear when the focus is in another window of the same family.
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, eteinte);
    return palette;
}

} // namespace

// Outside any namespace, as the macro demands; needed because the resources sit in a static library.
static void chargeRessources()
{
    Q_INIT_RESOURCE(varlotour);
}

void parleLangue(QApplication &application, const QLocale &langue)
{
    if (application.property(proprieteLangue).toLocale() == langue && application.property(proprieteLangue).isValid())
        return;
    application.setProperty(proprieteLangue, langue);
    qDeleteAll(application.findChildren<QTranslator *>(nomTraduction, Qt::FindDirectChildrenOnly));
    const auto installe = [&](const QString &fichier, const QString &dossier) {
        auto *traduction = new QTranslator(&application);
        traduction->setObjectName(nomTraduction);
        if (traduction->load(langue, fichier, QStringLiteral("_"), dossier))
            QApplication::installTranslator(traduction);
    };
    installe(QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    installe(QStringLiteral("outils"), QStringLiteral(":/traductions"));
}

void appliqueApparence(QApplication &application)
{
    chargeRessources();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setFont(policeLisible());
    QApplication::setPalette(couleurs());
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/images/varlotour.svg")));
    parleLangue(application, QLocale(QLocale::French));
    QFile feuille(QStringLiteral(":/style.qss"));
    const bool lue = feuille.open(QIODevice::ReadOnly | QIODevice::Text);
    Q_ASSERT_X(lue, "appliqueApparence", "style sheet missing from the resources");
    if (lue)
        application.setStyleSheet(QString::fromUtf8(feuille.readAll()));
}
