#pragma once

#include <QLabel>

/// Figures that are as large as their place allows: enlarged by hand, the toolbox is read across the ground.
class Afficheur : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    /// Any figure is as wide as any other: the size of the letters does not change from one second to the next.
    void setText(const QString &texte);
    /// The letters follow the place, never the other way round.
    QSize sizeHint() const override { return minimumSize(); }
    QSize minimumSizeHint() const override { return minimumSize(); }

protected:
    void resizeEvent(QResizeEvent *evenement) override;
    void changeEvent(QEvent *evenement) override;

private:
    void ajustePolice();
};
