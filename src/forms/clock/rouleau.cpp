#include "clock/rouleau.h"

#include <QPainter>
#include <QSvgRenderer>

#include <cmath>

namespace {

constexpr int bord = 2;
// Of a window of this size; another one shows the band larger or smaller.
constexpr QSizeF fenetreModele(72, 144);
constexpr double hauteurLigne = 84;
constexpr double largeurFigure = 48;
constexpr double hauteurFigure = 72; // ten of them make the band; each keeps some room around itself
constexpr int nombreFigures = 10;
const QString dessin = QStringLiteral(":/images/chiffres.svg");

/// The band is bent: it gets darker towards the edges of the window.
void ombre(QPainter &peintre, const QRect &fenetre)
{
    QLinearGradient courbure(fenetre.topLeft(), fenetre.bottomLeft());
    courbure.setColorAt(0, QColor(0x22, 0x38, 0x4A, 120));
    courbure.setColorAt(0.28, QColor(0x22, 0x38, 0x4A, 14));
    courbure.setColorAt(0.5, Qt::transparent);
    courbure.setColorAt(0.72, QColor(0x22, 0x38, 0x4A, 14));
    courbure.setColorAt(1, QColor(0x22, 0x38, 0x4A, 120));
    peintre.fillRect(fenetre, courbure);
}

} // namespace

Rouleau::Rouleau(QWidget *parent)
    : QWidget(parent)
{
    m_glissement.setEndValue(0.0);
    connect(&m_glissement, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
}

void Rouleau::montre(const Figures &figures)
{
    m_figures = figures;
    update();
}

void Rouleau::glisse(const Figures &figures, int lignes, int duree, bool arret)
{
    montre(figures);
    m_glissement.stop();
    if (!isVisible())
        return;
    m_glissement.setStartValue(double(lignes));
    m_glissement.setDuration(duree);
    m_glissement.setEasingCurve(arret ? QEasingCurve::OutCubic : QEasingCurve::Linear);
    m_glissement.start();
}

void Rouleau::hideEvent(QHideEvent *evenement)
{
    m_glissement.stop();
    QWidget::hideEvent(evenement);
}

const QPixmap &Rouleau::bande()
{
    const QSizeF taille = QSizeF(largeurFigure, hauteurFigure * nombreFigures) * echelle() * devicePixelRatioF();
    if (m_bande.size() != taille.toSize()) {
        m_bande = QPixmap(taille.toSize());
        m_bande.fill(Qt::transparent);
        QPainter peintre(&m_bande);
        QSvgRenderer(dessin).render(&peintre, QRectF(m_bande.rect()));
    }
    return m_bande;
}

double Rouleau::echelle() const
{
    return std::max(std::min(width() / fenetreModele.width(), height() / fenetreModele.height()), 0.1);
}

void Rouleau::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    peintre.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    // However tall the reel is made, one figure stands in its window, with a part of its neighbours.
    QRect dehors(0, 0, width(), std::min(height(), int(fenetreModele.height() * echelle())));
    dehors.moveCenter(rect().center());
    const QRect fenetre = dehors.adjusted(bord, bord, -bord, -bord);
    peintre.setClipRect(fenetre);
    peintre.fillRect(fenetre, Qt::white);

    const bool glisse = m_glissement.state() == QAbstractAnimation::Running;
    const double reste = glisse ? m_glissement.currentValue().toDouble() : 0;
    const double pas = hauteurLigne * echelle();
    const QSizeF place = QSizeF(largeurFigure, hauteurFigure) * echelle();
    const double milieu = fenetre.center().y() + 0.5 + reste * pas;
    const double figureBande = double(bande().height()) / nombreFigures;
    constexpr int nombreLignes = int(std::tuple_size_v<Figures>);
    const int decale = int(std::floor(reste));
    for (int ligne = ligneMontree - decale - 2; ligne <= ligneMontree - decale + 2; ++ligne) {
        const int figure = m_figures[size_t((ligne + 2 * nombreLignes) % nombreLignes)];
        const QPointF coin(fenetre.center().x() + 0.5 - place.width() / 2,
                           milieu + (ligne - ligneMontree) * pas - place.height() / 2);
        peintre.drawPixmap(QRectF(coin, place), m_bande, QRectF(0, figure * figureBande, m_bande.width(), figureBande));
    }
    ombre(peintre, fenetre);
    peintre.setClipping(false);
    peintre.setPen(QPen(QColor(0x22, 0x38, 0x4A), bord));
    peintre.drawRoundedRect(QRectF(dehors).adjusted(1, 1, -1, -1), 6, 6);
}
