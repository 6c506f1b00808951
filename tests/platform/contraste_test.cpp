#include "aspect/apparence.h"
#include "commun/contraste.h"
#include "grille/flexgridmodele.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <map>

// The ratios of the accessibility guidelines, level AA.

namespace {

constexpr double deTexte = 4.5;
constexpr double deForme = 3;
const QColor blanc = Qt::white;

/// The style sheet as selectors and what stands behind them.
class Feuille
{
public:
    explicit Feuille(QString texte)
    {
        texte.remove(QRegularExpression(u"/\\*.*?\\*/"_qs, QRegularExpression::DotMatchesEverythingOption));
        auto blocs = QRegularExpression(u"([^{}]+)\\{([^{}]*)\\}"_qs).globalMatch(texte);
        while (blocs.hasNext()) {
            const auto bloc = blocs.next();
            for (const QString &selecteur : bloc.captured(1).split(u','))
                for (const QString &declaration : bloc.captured(2).split(u';', Qt::SkipEmptyParts))
                    m_regles[selecteur.simplified()][declaration.section(u':', 0, 0).trimmed()] =
                        declaration.section(u':', 1).trimmed();
        }
    }

    const std::map<QString, std::map<QString, QString>> &regles() const { return m_regles; }

    /// The colour that \p propriete has for \p selecteur, here or in what it builds upon; invalid when nothing says it.
    QColor couleur(const QString &selecteur, const QString &propriete) const
    {
        static const QRegularExpression etat(u"(?<!:):(?!:)[a-z-]+"_qs);
        static const QRegularExpression precision(u"[#\\[][^ :]*"_qs);
        const QString sansEtat = QString(selecteur).remove(etat);
        const QString parent =
            sansEtat.contains(u"::"_qs) ? sansEtat.section(u"::"_qs, 0, 0) : sansEtat.section(u' ', 0, -2);
        for (const QString &essai : {selecteur, sansEtat, parent, QString(sansEtat).remove(precision)})
            if (const QColor lue = lit(essai, propriete); lue.isValid())
                return lue;
        return {};
    }

    /// The colour named in the value of \p propriete.
    QColor lit(const QString &selecteur, const QString &propriete) const
    {
        const auto regle = m_regles.find(selecteur);
        if (regle == m_regles.end() || !regle->second.contains(propriete))
            return {};
        const auto trouvee = QRegularExpression(u"#[0-9A-Fa-f]{6}"_qs).match(regle->second.at(propriete));
        return trouvee.hasMatch() ? QColor(trouvee.captured()) : QColor();
    }

private:
    std::map<QString, std::map<QString, QString>> m_regles;
};

class Contraste : public testing::Test
{
protected:
    void SetUp() override { appliqueApparence(*qApp); }

    /// What \p selecteur can stand on, its own ground aside.
    static QList<QColor> alentour()
    {
        const QPalette palette = QApplication::palette();
        return {blanc, palette.color(QPalette::Window), palette.color(QPalette::AlternateBase)};
    }
};

TEST_F(Contraste, ChaquePaireDeLaPaletteSeLit)
{
    const QPalette palette = QApplication::palette();
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> paires[] = {
        {QPalette::WindowText, QPalette::Window},         {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},        {QPalette::ButtonText, QPalette::Button},
        {QPalette::HighlightedText, QPalette::Highlight}, {QPalette::ToolTipText, QPalette::ToolTipBase},
        {QPalette::PlaceholderText, QPalette::Base},
    };
    for (const auto groupe : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        for (const auto &[encre, fond] : paires)
            EXPECT_GE(contraste(palette.color(groupe, encre), palette.color(groupe, fond)), deTexte)
                << groupe << ' ' << encre << " on " << fond;
}

TEST_F(Contraste, ChaqueTexteDeLaFeuilleSeLit)
{
    const Feuille feuille(qApp->styleSheet());
    const QRegularExpression sansTexte(u"::indicator|::drop-down|::down-arrow|QScrollBar|filet|"
                                       "alarme=\"rouge\"\\]$"_qs);
    int verifies = 0;
    for (const auto &[selecteur, proprietes] : feuille.regles()) {
        const bool colore = proprietes.contains(u"color"_qs) || proprietes.contains(u"background"_qs);
        if (!colore || selecteur.contains(sansTexte))
            continue;
        const QColor dite = feuille.couleur(selecteur, u"color"_qs);
        const QColor encre = dite.isValid() ? dite : QApplication::palette().color(QPalette::WindowText);
        const QColor fond = feuille.couleur(selecteur, u"background"_qs);
        for (const QColor &dessous : fond.isValid() ? QList<QColor>{fond} : alentour())
            EXPECT_GE(contraste(encre, dessous), deTexte)
                << qPrintable(selecteur) << ' ' << qPrintable(encre.name()) << " on " << qPrintable(dessous.name());
        ++verifies;
        if (const QColor choisi = feuille.lit(selecteur, u"selection-background-color"_qs); choisi.isValid()) {
            EXPECT_GE(contraste(feuille.lit(selecteur, u"selection-color"_qs), choisi), deTexte)
                << qPrintable(selecteur);
        }
    }
    EXPECT_GE(verifies, 40);
}

TEST_F(Contraste, ChaqueBordDeCommandeSeVoit)
{
    const Feuille feuille(qApp->styleSheet());
    const QRegularExpression commande(u"^(QLineEdit|QComboBox|QPlainTextEdit|QPushButton|QToolButton|QTableView|"
                                      "QListWidget|QTabBar::tab|Q(CheckBox|RadioButton)(::indicator|:focus))"_qs);
    int verifies = 0;
    for (const auto &[selecteur, proprietes] : feuille.regles()) {
        if (!selecteur.contains(commande) || selecteur.contains(u":disabled"_qs))
            continue;
        for (const QString &propriete : {u"border"_qs, u"border-color"_qs}) {
            const QColor bord = feuille.lit(selecteur, propriete);
            if (!bord.isValid())
                continue;
            ++verifies;
            // Seen against what lies outside, or against what it encloses.
            const QColor dedans = feuille.couleur(selecteur, u"background"_qs);
            if (dedans.isValid() && contraste(bord, dedans) >= deForme)
                continue;
            for (const QColor &dehors : alentour())
                EXPECT_GE(contraste(bord, dehors), deForme) << qPrintable(selecteur);
        }
    }
    EXPECT_GE(verifies, 12);
    for (const QString &poignee : {u"QScrollBar::handle"_qs, u"QScrollBar::handle:hover"_qs})
        EXPECT_GE(contraste(feuille.lit(poignee, u"background"_qs),
                            feuille.lit(u"QScrollBar:vertical"_qs, u"background"_qs)),
                  deForme);
}

TEST_F(Contraste, LEncreDUneCelluleColoreeSeLit)
{
    // Won, lost, called, the honours list's bye, the club picked; then all others, coarsely.
    QList<QRgb> fonds{0x00FF00, 0xFF0000, 0xFFFFFF, 0x00FFFF, 0x0080FF};
    for (int rouge = 0; rouge <= 255; rouge += 51)
        for (int vert = 0; vert <= 255; vert += 51)
            for (int bleu = 0; bleu <= 255; bleu += 51)
                fonds += qRgb(rouge, vert, bleu);
    for (const QRgb fond : fonds)
        EXPECT_GE(contraste(encreSur(QColor(fond)), QColor(fond)), deTexte) << qPrintable(QColor(fond).name());
}

/// Share of the pixels of \p image, drawn at the size of a button, that stand out from white.
double partVisible(const QString &chemin)
{
    QImage image(32, 32, QImage::Format_RGB32);
    image.fill(blanc);
    QPainter peintre(&image);
    QIcon(chemin).paint(&peintre, image.rect());
    peintre.end();
    int visibles = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            visibles += contraste(image.pixelColor(x, y), blanc) >= deForme;
    return double(visibles) / (image.width() * image.height());
}

TEST_F(Contraste, ChaqueImageSeVoit)
{
    const QDir images(u":/images"_qs);
    // White on the blue of a ticked box; the picture behind everything, meant to be faint; the strip of a reel.
    const QStringList autres{u"coche.svg"_qs, u"pastille.svg"_qs, u"fond.svg"_qs, u"chiffres.svg"_qs};
    for (const QString &nom : images.entryList()) {
        if (!autres.contains(nom)) {
            EXPECT_GE(partVisible(images.filePath(nom)), 0.1) << qPrintable(nom);
        }
    }
}

} // namespace
