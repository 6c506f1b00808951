#include "outils/courbe_equipes.h"

#include "printing/courbe.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace {

constexpr int bord = 6; // pixels
constexpr double rayon = 3.5;
const QColor trait(0x1F, 0x58, 0x8A);
const QColor sousLaCourbe(0x1F, 0x58, 0x8A, 0x30);

} // namespace

void CourbeEquipes::montre(std::vector<int> equipes, const QString &debut, const QString &fin)
{
    m_equipes = std::move(equipes);
    m_debut = debut;
    m_fin = fin;
    update();
}

void CourbeEquipes::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    const QFontMetrics mesure = fontMetrics();
    const QString plus = m_equipes.empty() ? QString() : QString::number(std::ranges::max(m_equipes));
    const int gauche = bord + mesure.horizontalAdvance(plus) + bord;
    const QRectF cadre(gauche, mesure.height() / 2.0 + rayon, width() - gauche - bord - rayon,
                       height() - mesure.height() * 1.5 - 2 * rayon);
    peintre.setPen(palette().color(QPalette::Mid));
    peintre.drawLine(cadre.bottomLeft(), cadre.bottomRight());
    if (m_equipes.empty())
        return;
    peintre.drawLine(cadre.topLeft(), cadre.topRight());
    const std::vector<QPointF> points = PointsDeLaCourbe(m_equipes, cadre);
    QPainterPath dessous(QPointF(points.front().x(), cadre.bottom()));
    for (const QPointF &point : points)
        dessous.lineTo(point);
    dessous.lineTo(points.back().x(), cadre.bottom());
    peintre.fillPath(dessous, sousLaCourbe);
    peintre.setPen(QPen(trait, 2));
    peintre.drawPolyline(points.data(), int(points.size()));
    peintre.setBrush(trait);
    for (const QPointF &point : points)
        peintre.drawEllipse(point, rayon, rayon);

    peintre.setPen(palette().color(QPalette::WindowText));
    const auto ecrit = [&](const QRectF &place, int cadrage, const QString &texte) {
        peintre.drawText(place, cadrage | Qt::TextSingleLine | Qt::TextDontClip, texte);
    };
    ecrit({0, cadre.top() - mesure.height() / 2.0, double(gauche - bord), double(mesure.height())}, Qt::AlignRight,
          plus);
    ecrit({0, cadre.bottom() - mesure.height() / 2.0, double(gauche - bord), double(mesure.height())}, Qt::AlignRight,
          u"0"_qs);
    const QRectF dates(cadre.left(), cadre.bottom() + rayon, cadre.width(), mesure.height());
    if (m_equipes.size() == 1) {
        ecrit(dates, Qt::AlignHCenter, m_debut);
        return;
    }
    ecrit(dates, Qt::AlignLeft, m_debut);
    ecrit(dates, Qt::AlignRight, m_fin);
}
