#include "aspect/image_nette.h"

#include <QPainter>

void ImageNette::setImage(const QString &chemin)
{
    m_image = chemin;
    const bool lue = m_dessin.load(chemin);
    Q_ASSERT_X(lue, "ImageNette", "no such drawing");
    Q_UNUSED(lue)
    update();
}

void ImageNette::setEtiree(bool etiree)
{
    m_etiree = etiree;
    update();
}

void ImageNette::paintEvent(QPaintEvent *)
{
    QRectF place = rect();
    if (!m_etiree) {
        const QSizeF taille = m_dessin.defaultSize();
        place = QRectF((width() - taille.width()) / 2, height() - taille.height(), taille.width(), taille.height());
    }
    QPainter peintre(this);
    m_dessin.render(&peintre, place);
}
