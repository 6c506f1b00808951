#pragma once

#include <QVariantAnimation>
#include <QWidget>

#include <array>

/// One reel of the lottery: a band of pictures of figures behind a window. It shows one figure, and a part of its two
/// neighbours.
class Rouleau : public QWidget
{
    Q_OBJECT

public:
    /// Figures 0 to 9 on the band, from top to bottom; the band is a ring.
    using Figures = std::array<quint8, 21>;
    /// Row of the band that stands in the middle of the window.
    static constexpr int ligneMontree = 1;

    explicit Rouleau(QWidget *parent = nullptr);

    /// Shows the band as it stands now.
    void montre(const Figures &figures);
    /// Shows the band, which has just come up by \p lignes rows: it slides there in \p duree milliseconds, evenly, or
    /// slower and slower when it is to stop there.
    void glisse(const Figures &figures, int lignes, int duree, bool arret);

    quint8 figureMontree() const { return m_figures[ligneMontree]; }

protected:
    void paintEvent(QPaintEvent *evenement) override;
    void hideEvent(QHideEvent *evenement) override;

private:
    const QPixmap &bande();
    double echelle() const;

    Figures m_figures{};
    QVariantAnimation m_glissement; ///< Rows that the band still has to come up.
    QPixmap m_bande; ///< The ten figures, one below the other, as large as they are painted.
};
