#pragma once

#include <QStringList>
#include <QWidget>

#include <vector>

/// A line of the number of teams, competition after competition.
class CourbeEquipes : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// A point for each of \p equipes, not negative; \p debut and \p fin stand below the first and the last.
    void montre(std::vector<int> equipes, const QString &debut, const QString &fin);

    QSize sizeHint() const override { return {400, 120}; }

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    std::vector<int> m_equipes;
    QString m_debut;
    QString m_fin;
};
