#pragma once

#include <QMargins>
#include <QSize>
#include <QString>

#include <memory>
#include <vector>

/// One stroke of a page, in twips from the corner of the printable area.
struct Dessin
{
    enum Genre { Texte, Trait };

    Genre genre = Texte;
    int x1 = 0; ///< Left end of a line, or of a text.
    int y1 = 0; ///< Upper edge of a text.
    int x2 = 0; ///< Right end of a line, or of a text.
    int y2 = 0; ///< Lower edge of a text.
    QString texte = {};
    double taille = 0; ///< Points.
    bool gras = false;
    bool italique = false;
};

enum class Orientation { Portrait = 1, Paysage = 2 };

/// A page as it was drawn, kept until the document is sent.
struct PageDessinee
{
    Orientation orientation = Orientation::Portrait;
    std::vector<Dessin> dessins = {};
};

/// Where a document goes: a printer, a file, or a test. Measures are those of a page in portrait, in twips.
class Destination
{
public:
    virtual ~Destination() = default;
    /// Size of the sheet.
    virtual QSize papier() const = 0;
    /// Edge that cannot be printed on.
    virtual QMargins marges() const = 0;
    /// Number of copies that the operator asked for.
    virtual int copies() const { return 1; }
    /// Sends the document; false when the printer did not take it.
    [[nodiscard]] virtual bool recoit(const std::vector<PageDessinee> &pages, int copies) = 0;
};

/// A4 with margins that every office printer leaves free.
inline constexpr QSize papierA4{11906, 16838};
inline constexpr QMargins margesHabituelles{240, 240, 240, 240};

/// The printer object of one document. Positions and sizes are in twips, font sizes in points; the origin is the corner
/// of the printable area. Texts and lines are recorded, and played when the document ends.
class Imprimante
{
public:
    explicit Imprimante(std::unique_ptr<Destination> destination);

    QString FontName;
    double FontSize = 10;
    bool FontBold = false;
    bool FontItalic = false;
    int CurrentX = 0;
    int CurrentY = 0;
    int Copies = 1;

    /// Paper size in the current orientation.
    int Width() const { return papier().width(); }
    int Height() const { return papier().height(); }
    /// Printable area in the current orientation.
    int ScaleWidth() const;
    int ScaleHeight() const;
    Orientation orientation() const { return m_orientation; }
    /// Holds for the current page while nothing stands on it, and for the following ones.
    void setOrientation(Orientation orientation);

    /// Width of \p texte, one line, in the current letters.
    int TextWidth(const QString &texte) const;
    /// Prints at the current place and moves it behind the text, or to the start of the next line with
    /// \p finDeLigne. A line break inside the text does the same.
    void Print(const QString &texte, bool finDeLigne = true);
    /// Draws a straight line; the place of the next text stays.
    void Line(int x1, int y1, int x2, int y2);
    /// Begins a page; the place goes to its corner, the letters stay.
    void NewPage();
    /// Ends the document and sends it. A printer that fails is passed over.
    void EndDoc();

private:
    QSize papier() const;
    QMargins marges() const;
    void ecrit(const QString &texte);
    void alaLigne();

    std::unique_ptr<Destination> m_destination;
    Orientation m_orientation = Orientation::Portrait;
    std::vector<PageDessinee> m_pages;
};
