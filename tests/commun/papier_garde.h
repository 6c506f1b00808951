#pragma once

#include "papier/imprimante.h"

#include <QRect>
#include <QStringList>

#include <gtest/gtest.h>

/// Pages of one printed document.
using Pages = std::vector<PageDessinee>;

/// A printer of plain A4 that keeps what it is sent.
class DestinationGardee final : public Destination
{
public:
    explicit DestinationGardee(std::vector<Pages> &documents)
        : m_documents(documents)
    {
    }
    QSize papier() const override { return papierA4; }
    QMargins marges() const override { return margesHabituelles; }
    bool recoit(const Pages &pages, int) override
    {
        m_documents.push_back(pages);
        return true;
    }

private:
    std::vector<Pages> &m_documents;
};

/// First text of a page that reads \p texte, blanks at its ends aside; null when there is none.
inline const Dessin *trouve(const PageDessinee &page, const QString &texte)
{
    for (const Dessin &dessin : page.dessins) {
        if (dessin.genre == Dessin::Texte && dessin.texte.trimmed() == texte)
            return &dessin;
    }
    return nullptr;
}

/// Texts of a page in the order in which they were drawn, a bar between two.
inline QString texteDe(const PageDessinee &page)
{
    QStringList textes;
    for (const Dessin &dessin : page.dessins)
        textes += dessin.texte.trimmed();
    textes.removeAll(QString());
    return textes.join(u'|');
}

/// No two texts of a page lie over each other, and none goes over the edge \p droite or into the footer, the line that
/// starts at \p pied; twips.
inline void VerifiePlaces(const PageDessinee &page, int droite, int pied)
{
    std::vector<std::pair<QRect, QString>> places;
    for (const Dessin &dessin : page.dessins) {
        if (dessin.genre != Dessin::Texte || dessin.texte.trimmed().isEmpty())
            continue;
        EXPECT_TRUE(dessin.x1 >= 0 && dessin.x2 <= droite) << dessin.texte.toStdString();
        EXPECT_TRUE(dessin.y2 <= pied || dessin.y1 == pied) << dessin.texte.toStdString();
        const QRect place(dessin.x1, dessin.y1, dessin.x2 - dessin.x1, dessin.y2 - dessin.y1);
        for (const auto &[autre, texte] : places)
            EXPECT_FALSE(place.intersects(autre)) << dessin.texte.toStdString() << " over " << texte.toStdString();
        places.emplace_back(place, dessin.texte);
    }
}

/// The longest texts that the head of a sheet has to bear.
inline const QString lieuLong = u"BOULODROME JEAN MOULIN ET ROBERT, SAINT-RAPHAËL 83"_qs;
inline const QString categorieLongue = u"Grand Prix de la Ville"_qs;
