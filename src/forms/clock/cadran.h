#pragma once

#include <QTime>
#include <QWidget>

/// A clock with three hands, drawn in a square of 200 units whatever the size of the widget. The hour hand jumps from
/// hour to hour.
class Cadran : public QWidget
{
    Q_OBJECT

public:
    explicit Cadran(QWidget *parent = nullptr);

    void montre(QTime heure);
    QTime heure() const { return m_heure; }

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    QTime m_heure{0, 0};
};
