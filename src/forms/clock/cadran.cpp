#include "clock/cadran.h"

#include <QPainter>

#include <cmath>

namespace {

constexpr double cote = 200;
constexpr double coteSansChiffres = 162;
constexpr int placeDesChiffres = 150; // pixels
constexpr double rayon = 70;
constexpr double tour = 6.2831853072;
const QPointF centre(100, 100);
const QColor encre(0x1B, 0x2A, 0x36);
const QColor accent(0x1F, 0x5A, 0x8C);
const QColor rouge(0xB3, 0x21, 0x1A);

QPointF vers(double angle, double longueur)
{
    return centre + longueur * QPointF(std::sin(angle), -std::cos(angle));
}

void aiguille(QPainter &peintre, double angle, double longueur, double epaisseur, const QColor &couleur)
{
    peintre.setPen(QPen(couleur, epaisseur, Qt::SolidLine, Qt::RoundCap));
    peintre.drawLine(centre, vers(angle, longueur));
}

/// Marks and figures stand outside the circle, which belongs to the hands.
void couronne(QPainter &peintre, bool chiffree)
{
    constexpr double bordInterieur = 73;
    QFont chiffres = peintre.font();
    chiffres.setPixelSize(14);
    chiffres.setBold(true);
    peintre.setFont(chiffres);
    for (int minute = 0; minute < 60; ++minute) {
        const double angle = minute * tour / 60;
        const bool heure = minute % 5 == 0;
        peintre.setPen(QPen(heure ? encre : QColor(0x75, 0x84, 0x8F), heure ? 2.2 : 1, Qt::SolidLine, Qt::RoundCap));
        peintre.drawLine(vers(angle, bordInterieur), vers(angle, heure ? 78 : 76));
        if (!heure || !chiffree)
            continue;
        peintre.setPen(encre);
        const QPointF milieu = vers(angle, 90);
        peintre.drawText(QRectF(milieu - QPointF(12, 10), QSizeF(24, 20)), Qt::AlignCenter,
                         QString::number(minute == 0 ? 12 : minute / 5));
    }
}

} // namespace

Cadran::Cadran(QWidget *parent)
    : QWidget(parent)
{
}

void Cadran::montre(QTime heure)
{
    m_heure = heure;
    update();
}

void Cadran::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.fillRect(rect(), Qt::white);
    // A small dial keeps its marks only: its figures could not be read, and took room from the hands.
    const int place = std::min(width(), height());
    const bool chiffree = place >= placeDesChiffres;
    const double echelle = place / (chiffree ? cote : coteSansChiffres);
    peintre.translate(width() / 2.0, height() / 2.0);
    peintre.scale(echelle, echelle);
    peintre.translate(-centre);
    couronne(peintre, chiffree);
    peintre.setPen(QPen(encre, 1));
    peintre.drawEllipse(centre, rayon, rayon);
    aiguille(peintre, m_heure.hour() % 12 * tour / 12, 50, 3, encre);
    aiguille(peintre, m_heure.minute() * tour / 60, 70, 2, accent);
    aiguille(peintre, m_heure.second() * tour / 60, 55, 1, rouge);
}
