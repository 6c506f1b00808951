#pragma once

#include "engine/saison.h"

#include <QStringList>
#include <QWidget>

/// A line of the number of teams, day after day. Its accessible name is its title.
class CourbeEquipes : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// \p dates are the texts of the days of \p jours.
    void montre(std::vector<JourDeSaison> jours, const QStringList &dates);

    QSize sizeHint() const override { return {400, 140}; }

protected:
    bool event(QEvent *evenement) override;
    void paintEvent(QPaintEvent *evenement) override;

private:
    QRectF cadre() const;
    QString texte(std::size_t point) const;

    std::vector<JourDeSaison> m_jours;
    QStringList m_dates;
};
