#include "outils/courbe_equipes.h"

#include "printing/courbe.h"

#include <QHelpEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr int bord = 6; // pixels
constexpr double rayon = 3.5;
constexpr double portee = 24; ///< From a point to the pointer that asks for it.
const QColor trait(0x1F, 0x58, 0x8A);
const QColor sousLaCourbe(0x1F, 0x58, 0x8A, 0x30);

QString plusGrand(const std::vector<JourDeSaison> &jours)
{
    return jours.empty() ? QString() : QString::number(std::ranges::max(jours, {}, &JourDeSaison::equipes).equipes);
}

} // namespace

void CourbeEquipes::montre(std::vector<JourDeSaison> jours, const QStringList &dates)
{
    m_jours = std::move(jours);
    m_dates = dates;
    QStringList textes;
    for (std::size_t point = 0; point < m_jours.size(); ++point)
        textes += texte(point);
    setAccessibleDescription(textes.join(u", "_qs));
    update();
}

QString CourbeEquipes::texte(std::size_t point) const
{
    return m_dates[qsizetype(point)] + u" : "_qs + QString::number(m_jours[point].equipes);
}

/// Where the line goes: below the title, above the dates, on the right of the numbers.
QRectF CourbeEquipes::cadre() const
{
    const QFontMetrics mesure = fontMetrics();
    const double gauche = 2 * bord + mesure.horizontalAdvance(plusGrand(m_jours));
    const double haut = mesure.height() + bord + rayon;
    return {gauche, haut, width() - gauche - bord - rayon, height() - haut - mesure.height() - 2 * rayon};
}

bool CourbeEquipes::event(QEvent *evenement)
{
    if (evenement->type() != QEvent::ToolTip)
        return QWidget::event(evenement);
    const auto *aide = static_cast<QHelpEvent *>(evenement);
    const std::vector<QPointF> points = PointsDeLaCourbe(m_jours, cadre());
    const auto ecart = [&](const QPointF &point) { return QLineF(point, aide->pos()).length(); };
    const auto proche = std::ranges::min_element(points, {}, ecart);
    if (proche != points.end() && ecart(*proche) <= portee)
        QToolTip::showText(aide->globalPos(), texte(std::size_t(proche - points.begin())), this);
    else
        QToolTip::hideText();
    return true;
}

void CourbeEquipes::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    const double hauteur = fontMetrics().height();
    const QRectF cadre = this->cadre();
    const auto ecrit = [&](const QRectF &place, int cadrage, const QString &texte) {
        peintre.drawText(place, cadrage | Qt::TextSingleLine | Qt::TextDontClip, texte);
    };
    peintre.setPen(palette().color(QPalette::WindowText));
    ecrit({cadre.left(), 0, cadre.width(), hauteur}, Qt::AlignLeft, accessibleName());
    peintre.setPen(palette().color(QPalette::Mid));
    peintre.drawLine(cadre.bottomLeft(), cadre.bottomRight());
    if (m_jours.empty())
        return;
    peintre.drawLine(cadre.topLeft(), cadre.topRight());
    const std::vector<QPointF> points = PointsDeLaCourbe(m_jours, cadre);
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
    const double numeros = cadre.left() - bord;
    ecrit({0, cadre.top() - hauteur / 2, numeros, hauteur}, Qt::AlignRight, plusGrand(m_jours));
    ecrit({0, cadre.bottom() - hauteur / 2, numeros, hauteur}, Qt::AlignRight, u"0"_qs);
    const QRectF dates(cadre.left(), cadre.bottom() + rayon, cadre.width(), hauteur);
    if (m_jours.size() == 1) {
        ecrit(dates, Qt::AlignHCenter, m_dates.front());
        return;
    }
    ecrit(dates, Qt::AlignLeft, m_dates.front());
    ecrit(dates, Qt::AlignRight, m_dates.back());
}
