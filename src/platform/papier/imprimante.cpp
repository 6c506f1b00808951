#include "papier/imprimante.h"

#include "papier/police_papier.h"

#include <QStringList>

Imprimante::Imprimante(std::unique_ptr<Destination> destination)
    : Copies(destination->copies())
    , m_destination(std::move(destination))
    , m_pages(1)
{
}

QSize Imprimante::papier() const
{
    const QSize portrait = m_destination->papier();
    return m_orientation == Orientation::Paysage ? portrait.transposed() : portrait;
}

/// A sheet turned to landscape keeps the margins of its edges.
QMargins Imprimante::marges() const
{
    const QMargins m = m_destination->marges();
    return m_orientation == Orientation::Paysage ? QMargins(m.top(), m.right(), m.bottom(), m.left()) : m;
}

int Imprimante::ScaleWidth() const
{
    return Width() - marges().left() - marges().right();
}

int Imprimante::ScaleHeight() const
{
    return Height() - marges().top() - marges().bottom();
}

void Imprimante::setOrientation(Orientation orientation)
{
    m_orientation = orientation;
    if (m_pages.back().dessins.empty())
        m_pages.back().orientation = orientation;
}

int Imprimante::TextWidth(const QString &texte) const
{
    return PolicePapier(FontName, FontSize, FontBold, FontItalic).largeur(texte);
}

void Imprimante::Print(const QString &texte, bool finDeLigne)
{
    const QStringList lignes = QString(texte).remove(u'\r').split(u'\n');
    for (qsizetype i = 0; i < lignes.size(); ++i) {
        if (i > 0)
            alaLigne();
        ecrit(lignes[i]);
    }
    if (finDeLigne)
        alaLigne();
}

void Imprimante::ecrit(const QString &texte)
{
    if (texte.isEmpty())
        return;
    const PolicePapier police(FontName, FontSize, FontBold, FontItalic);
    const int fin = CurrentX + police.largeur(texte);
    m_pages.back().dessins.push_back({.genre = Dessin::Texte,
                                      .x1 = CurrentX,
                                      .y1 = CurrentY,
                                      .x2 = fin,
                                      .y2 = CurrentY + police.hauteur(),
                                      .texte = texte,
                                      .taille = FontSize,
                                      .gras = FontBold,
                                      .italique = FontItalic});
    CurrentX = fin;
}

void Imprimante::alaLigne()
{
    CurrentX = 0;
    CurrentY += PolicePapier(FontName, FontSize, FontBold, FontItalic).hauteur();
}

void Imprimante::Line(int x1, int y1, int x2, int y2)
{
    m_pages.back().dessins.push_back({.genre = Dessin::Trait, .x1 = x1, .y1 = y1, .x2 = x2, .y2 = y2});
}

void Imprimante::NewPage()
{
    m_pages.push_back({.orientation = m_orientation});
    CurrentX = 0;
    CurrentY = 0;
}

void Imprimante::EndDoc()
{
    // What has come out is the sheet: the operator sees it, and prints again.
    std::ignore = m_destination->recoit(m_pages, Copies);
    m_pages.assign(1, {.orientation = m_orientation});
    CurrentX = 0;
    CurrentY = 0;
}
