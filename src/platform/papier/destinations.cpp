#include "papier/destinations.h"

#include "papier/police_papier.h"
#include "socle/respiration.h"

#include <QPageLayout>
#include <QPageRanges>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>

#include <cmath>

namespace {

constexpr double twipsParPouce = 1440;
constexpr int pointsParPouceDuPdf = 1200;
constexpr int epaisseurTrait = 15; // twips
const QString famillePapier = u"Times New Roman"_qs;

void dessine(QPainter &crayon, const Dessin &dessin)
{
    if (dessin.genre == Dessin::Trait) {
        crayon.drawLine(dessin.x1, dessin.y1, dessin.x2, dessin.y2);
        return;
    }
    const PolicePapier police(famillePapier, dessin.taille, dessin.gras, dessin.italique);
    crayon.setFont(police.police());
    crayon.drawText(QPointF(dessin.x1, dessin.y1 + police.montee()), dessin.texte);
}

/// The pages that the operator asked for in the dialog; all of them when he named none.
std::vector<PageDessinee> pagesVoulues(const QPrinter &imprimante, const std::vector<PageDessinee> &pages)
{
    const QPageRanges plages = imprimante.pageRanges();
    if (imprimante.printRange() != QPrinter::PageRange || plages.isEmpty())
        return pages;
    std::vector<PageDessinee> voulues;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (plages.contains(int(i) + 1))
            voulues.push_back(pages[i]);
    }
    return voulues;
}

/// Draws the pages on a device whose margins are none: the twips of the page start at its printable corner.
bool joue(QPagedPaintDevice &appareil, const std::vector<PageDessinee> &pages, const QMargins &margesPortrait)
{
    const auto oriente = [&](Orientation orientation) {
        appareil.setPageOrientation(orientation == Orientation::Paysage ? QPageLayout::Landscape
                                                                        : QPageLayout::Portrait);
    };
    oriente(pages.front().orientation);
    QPainter crayon;
    if (!crayon.begin(&appareil))
        return false;
    Respiration respiration;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        respiration.souffle();
        const PageDessinee &page = pages[i];
        if (i > 0) {
            oriente(page.orientation);
            if (!appareil.newPage())
                return false;
        }
        const bool paysage = page.orientation == Orientation::Paysage;
        crayon.resetTransform();
        crayon.scale(appareil.logicalDpiX() / twipsParPouce, appareil.logicalDpiY() / twipsParPouce);
        crayon.translate(paysage ? margesPortrait.top() : margesPortrait.left(),
                         paysage ? margesPortrait.right() : margesPortrait.top());
        crayon.setPen(QPen(Qt::black, epaisseurTrait));
        for (const Dessin &dessin : page.dessins)
            dessine(crayon, dessin);
    }
    return crayon.end();
}

} // namespace

DestinationPdf::DestinationPdf(const QString &fichier)
    : m_fichier(fichier)
{
}

bool DestinationPdf::recoit(const std::vector<PageDessinee> &pages, int)
{
    QPdfWriter pdf(m_fichier);
    pdf.setResolution(pointsParPouceDuPdf);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageMargins(QMarginsF());
    pdf.setCreator(u"VarloTour"_qs);
    return joue(pdf, pages, marges());
}

DestinationImprimante::DestinationImprimante(std::unique_ptr<QPrinter> imprimante)
    : m_imprimante(std::move(imprimante))
{
}

DestinationImprimante::~DestinationImprimante() = default;

QSize DestinationImprimante::papier() const
{
    const QSizeF points = m_imprimante->pageLayout().pageSize().size(QPageSize::Point);
    return QSize(int(std::lround(points.width() * 20)), int(std::lround(points.height() * 20)));
}

QMargins DestinationImprimante::marges() const
{
    QPageLayout disposition = m_imprimante->pageLayout();
    disposition.setUnits(QPageLayout::Point);
    const QMarginsF points = disposition.minimumMargins();
    const auto margeEnTwips = [](double valeur, int auMoins) {
        return std::max(int(std::lround(valeur * 20)), auMoins);
    };
    return {margeEnTwips(points.left(), margesHabituelles.left()), margeEnTwips(points.top(), margesHabituelles.top()),
            margeEnTwips(points.right(), margesHabituelles.right()),
            margeEnTwips(points.bottom(), margesHabituelles.bottom())};
}

int DestinationImprimante::copies() const
{
    return m_imprimante->copyCount();
}

bool DestinationImprimante::recoit(const std::vector<PageDessinee> &pages, int nombre)
{
    const std::vector<PageDessinee> voulues = pagesVoulues(*m_imprimante, pages);
    if (voulues.empty())
        return true;
    m_imprimante->setFullPage(true);
    m_imprimante->setCopyCount(nombre);
    return joue(*m_imprimante, voulues, marges());
}
