#include "clock/rouleau.h"

#include <QPainter>
#include <QSvgRenderer>

#include <cmath>

namespace {

constexpr int bord = 2;
constexpr int hauteurLigne = 84;
constexpr int largeurFigure = 48;
constexpr int hauteurFigure = 72; // ten of them make the band; each keeps some room around itself
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
    const double densite = devicePixelRatioF();
    if (m_bande.isNull() || m_bande.devicePixelRatio() != densite) {
        m_bande = QPixmap((QSizeF(largeurFigure, hauteurFigure * nombreFigures) * densite).toSize());
        m_bande.setDevicePixelRatio(densite);
        m_bande.fill(Qt::transparent);
        QPainter peintre(&m_bande);
        QSvgRenderer(dessin).render(&peintre, QRectF(0, 0, largeurFigure, hauteurFigure * nombreFigures));
    }
    return m_bande;
}

void Rouleau::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    peintre.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRect fenetre = rect().adjusted(bord, bord, -bord, -bord);
    peintre.setClipRect(fenetre);
    peintre.fillRect(fenetre, Qt::white);

    const bool glisse = m_glissement.state() == QAbstractAnimation::Running;
    const double reste = glisse ? m_glissement.currentValue().toDouble() : 0;
    const double milieu = fenetre.center().y() + 0.5 + reste * hauteurLigne;
    const double densite = bande().devicePixelRatio();
    constexpr int nombreLignes = int(std::tuple_size_v<Figures>);
    const int decale = int(std::floor(reste));
    for (int ligne = ligneMontree - decale - 2; ligne <= ligneMontree - decale + 2; ++ligne) {
        const int figure = m_figures[size_t((ligne + 2 * nombreLignes) % nombreLignes)];
        const double y = milieu + (ligne - ligneMontree) * hauteurLigne - hauteurFigure / 2.0;
        peintre.drawPixmap(QPointF(fenetre.center().x() + 0.5 - largeurFigure / 2.0, y), m_bande,
                           QRectF(0, figure * hauteurFigure * densite, largeurFigure * densite,
                                  hauteurFigure * densite));
    }
    ombre(peintre, fenetre);
    peintre.setClipping(false);
    peintre.setPen(QPen(QColor(0x22, 0x38, 0x4A), bord));
    peintre.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 6, 6);
}
