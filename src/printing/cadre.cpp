#include "printing/cadre.h"

#include "app/routines.h"

namespace {

const QString policeFeuilles = u"Times New Roman"_qs;
constexpr int gauchePied = 400;
constexpr int droitePied = 2200;
constexpr double tailleLisible = 7; // points
constexpr int montanteParPoint = 18; // twips from the upper edge of a text to the line on which its letters stand

} // namespace

void ecritJusque(Imprimante &papier, const QString &texte, int fin)
{
    const double taille = papier.FontSize;
    while (papier.CurrentX + papier.TextWidth(texte) > fin && papier.FontSize > tailleLisible)
        papier.FontSize -= 1;
    const int descente = int((taille - papier.FontSize) * montanteParPoint);
    papier.CurrentY += descente;
    papier.Print(texte, false);
    papier.CurrentY -= descente;
    papier.FontSize = taille;
}

QString aligneDroite(const QString &texte, int largeur)
{
    return (QString(largeur, u' ') + texte).right(largeur);
}

QString aligneDroite(qint64 nombre, int largeur)
{
    return aligneDroite(QString::number(nombre), largeur);
}

std::unique_ptr<Cadre> Cadre::ouvre(const Contexte &contexte)
{
    std::unique_ptr<Destination> destination = contexte.boites.ShowPrinter();
    if (destination == nullptr) {
        contexte.boites.MsgBox(u"Impression annulée"_qs);
        return nullptr;
    }
    return std::unique_ptr<Cadre>(new Cadre(contexte, std::move(destination)));
}

Cadre::Cadre(const Contexte &contexte, std::unique_ptr<Destination> destination)
    : m_partage(contexte.partage)
    , m_patience(contexte, contexte.partage.mes(129))
    , m_papier(std::move(destination))
{
    m_papier.FontName = policeFeuilles;
}

void Cadre::saute(int limite)
{
    m_patience.avance(m_page + 1);
    if (m_papier.CurrentY <= limite)
        return;
    ecritPied();
    m_papier.NewPage();
    m_entete();
}

void Cadre::termine()
{
    ecritPied();
    m_papier.EndDoc();
    m_papier.setOrientation(Orientation::Portrait);
}

void Cadre::ecritConcours(int colonne)
{
    m_papier.Print(m_partage.DateConcours, false);
    m_papier.Print(u' ' + m_partage.LieuConcours + u' ', false);
    m_papier.CurrentX = colonne;
    m_papier.Print(TailleEquipe(m_partage.NbJoueurs), false);
    m_papier.Print(m_partage.CategorieConcours, false);
    m_papier.Print(u"\r\n"_qs);
}

void Cadre::ecritPied()
{
    ++m_page;
    m_papier.FontBold = false;
    m_papier.FontSize = 10;
    m_papier.CurrentY = m_papier.ScaleHeight() - m_pied;
    m_papier.CurrentX = gauchePied;
    m_papier.Print(adresseEditeur, false);
    m_papier.CurrentX = m_papier.ScaleWidth() - droitePied;
    m_papier.Print(u"Page "_qs + QString::number(m_page));
}
