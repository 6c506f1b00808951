#pragma once

#include <QSvgRenderer>
#include <QWidget>

/// A picture that stays sharp at every size and scale of the screen: it is drawn anew, never stretched.
class ImageNette : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString image READ image WRITE setImage)
    Q_PROPERTY(bool etiree READ etiree WRITE setEtiree)

public:
    explicit ImageNette(QWidget *parent = nullptr)
        : QWidget(parent)
    {
    }

    /// Path of the SVG drawing among the resources; empty at first, and nothing is drawn then.
    QString image() const { return m_image; }
    void setImage(const QString &chemin);
    /// Whether the picture fills the widget; otherwise it keeps its own size, at the middle of the lower edge.
    bool etiree() const { return m_etiree; }
    void setEtiree(bool etiree);

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    QString m_image;
    bool m_etiree = true;
    QSvgRenderer m_dessin;
};
