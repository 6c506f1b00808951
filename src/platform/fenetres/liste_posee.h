#pragma once

#include <QComboBox>

/// A list whose entry is chosen in the open list only: a key on the closed one opens it and the wheel leaves it alone,
/// so that nothing is chosen in passing.
class ListePosee : public QComboBox
{
    Q_OBJECT

public:
    using QComboBox::QComboBox;

protected:
    void keyPressEvent(QKeyEvent *evenement) override;
    void wheelEvent(QWheelEvent *evenement) override;
};
