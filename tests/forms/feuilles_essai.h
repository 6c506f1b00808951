#pragma once

#include "inscription_essai.h"
#include "papier/imprimante.h"

#include <QRect>
#include <QStringList>

constexpr int largeurPapier = 11906; ///< A4, in twips.
constexpr int hauteurPapier = 16838;

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

/// Texts of a page that start at one of the places \p gauches, those of one height joined by bars.
inline QStringList rangeesA(const PageDessinee &page, const QList<int> &gauches)
{
    QStringList rangees;
    int y = -1;
    for (const Dessin &dessin : page.dessins) {
        if (dessin.genre != Dessin::Texte || !gauches.contains(dessin.x1))
            continue;
        if (dessin.y1 == y)
            rangees.back() += u'|' + dessin.texte;
        else
            rangees += dessin.texte;
        y = dessin.y1;
    }
    return rangees;
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

/// Sheets printed by the real forms: the printer keeps its documents.
class FeuillesEssai : public Inscription
{
protected:
    void SetUp() override
    {
        Inscription::SetUp();
        boites.imprimante = [this] { return std::make_unique<DestinationGardee>(documents); };
    }

    /// Pages of the one document that \p acte prints; of none, when there is no single one.
    Pages imprimes(const std::function<void()> &acte)
    {
        documents.clear();
        acte();
        return documents.size() == 1 ? documents.front() : Pages();
    }

    std::vector<Pages> documents;
};
