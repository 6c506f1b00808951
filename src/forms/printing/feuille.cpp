#include "printing/feuille.h"

#include "partage/routines.h"

namespace {

const QString adresseEditeur = u"www.varlotour.example"_qs;
const QString policeFeuilles = u"Times New Roman"_qs;
constexpr int gaucheEntete = 400;
constexpr int hautEntete = 300;
constexpr int droitePied = 2200;
constexpr double taillePied = 10; // points
constexpr double plusPetite = 5; // points
constexpr double pasTaille = 0.5; // points
constexpr int montanteParPoint = 18; // twips from the upper edge of a text to the line on which its letters stand

} // namespace

QString aligneDroite(const QString &texte, int largeur)
{
    return (QString(largeur, u' ') + texte).right(largeur);
}

QString aligneDroite(qint64 nombre, int largeur)
{
    return aligneDroite(QString::number(nombre), largeur);
}

std::unique_ptr<Feuille> Feuille::ouvre(const Contexte &contexte, const MiseEnPage &mise)
{
    std::unique_ptr<Destination> destination = contexte.boites.ShowPrinter();
    if (destination == nullptr) {
        contexte.boites.MsgBox(u"Impression annulée"_qs);
        return nullptr;
    }
    return std::unique_ptr<Feuille>(new Feuille(contexte, std::move(destination), mise));
}

Feuille::Feuille(const Contexte &contexte, std::unique_ptr<Destination> destination, const MiseEnPage &mise)
    : m_partage(contexte.partage)
    , m_patience(contexte, contexte.partage.mes(129))
    , m_papier(std::move(destination))
    , m_mise(mise)
{
    m_papier.FontName = policeFeuilles;
}

int Feuille::bas(MiseEnPage::Bord bord) const
{
    return bord == MiseEnPage::Papier ? m_papier.Height() : m_papier.ScaleHeight();
}

void Feuille::commence()
{
    m_entete();
    m_haut = m_papier.CurrentY;
}

void Feuille::saute(int suite)
{
    m_patience.avance(m_page + 1);
    if (m_papier.CurrentY > std::min(finPage(), hautPied() - suite))
        tourne();
}

void Feuille::garde(int suite)
{
    const bool commencee = m_papier.CurrentY > m_haut; // what is longer than a page stands no better on the next one
    if (commencee && m_papier.CurrentY > std::min(finPage(), hautPied()) - suite)
        tourne();
}

void Feuille::tourne()
{
    const double taille = m_papier.FontSize;
    const bool gras = m_papier.FontBold;
    const bool italique = m_papier.FontItalic;
    ecritPied();
    m_papier.NewPage();
    commence();
    m_papier.FontSize = taille;
    m_papier.FontBold = gras;
    m_papier.FontItalic = italique;
}

void Feuille::termine()
{
    ecritPied();
    m_papier.EndDoc();
    m_papier.setOrientation(Orientation::Portrait);
}

void Feuille::ecritPied()
{
    ++m_page;
    m_papier.FontBold = false;
    m_papier.FontItalic = false;
    m_papier.FontSize = taillePied;
    m_papier.CurrentY = hautPied();
    m_papier.CurrentX = m_mise.gauchePied;
    m_papier.Print(adresseEditeur, !m_mise.numerotee);
    if (!m_mise.numerotee)
        return;
    m_papier.CurrentX = m_papier.ScaleWidth() - droitePied;
    m_papier.Print(u"Page "_qs + QString::number(m_page));
}

void Feuille::ecritConcours(double taille, int colonne)
{
    m_papier.FontBold = false;
    m_papier.FontSize = taille;
    m_papier.CurrentX = gaucheEntete;
    m_papier.CurrentY = hautEntete;
    m_papier.Print(m_partage.DateConcours, false);
    ecrit(m_papier.CurrentX, u' ' + m_partage.LieuConcours, colonne - ecartTextes);
    // What the teams are and what they play for: one line, one size.
    const QString equipes = TailleEquipe(m_partage.NbJoueurs);
    const int fin = m_papier.ScaleWidth();
    const double commune = tailleQuiTient(equipes + m_partage.CategorieConcours, fin - colonne);
    m_papier.CurrentX = colonne;
    pose(equipes, commune, fin);
    pose(m_partage.CategorieConcours, commune, fin);
    m_papier.Print(u"\r\n"_qs);
}

void Feuille::ecritTitre(double taille, int gauche, const QString &titre)
{
    m_papier.FontSize = taille;
    m_papier.FontBold = true;
    ecrit(gauche, titre, m_papier.ScaleWidth());
    m_papier.Print({});
}

double Feuille::tailleQuiTient(const QString &texte, int largeur)
{
    const double voulue = m_papier.FontSize;
    while (m_papier.TextWidth(texte) > largeur && m_papier.FontSize > plusPetite)
        m_papier.FontSize = std::max(m_papier.FontSize - pasTaille, plusPetite);
    return std::exchange(m_papier.FontSize, voulue);
}

void Feuille::ecrit(int gauche, const QString &texte, int fin)
{
    m_papier.CurrentX = gauche;
    pose(texte, tailleQuiTient(texte, fin - gauche), fin);
}

/// Prints at the current place in letters of \p petite points, which stand on the same line as the current ones.
void Feuille::pose(const QString &texte, double petite, int fin)
{
    const double taille = std::exchange(m_papier.FontSize, petite);
    QString entier = texte;
    while (m_papier.CurrentX + m_papier.TextWidth(entier) > fin && entier.size() > 1)
        entier = entier.left(entier.size() - 2) + u'…';
    const int descente = int((taille - petite) * montanteParPoint);
    m_papier.CurrentY += descente;
    m_papier.Print(entier, false);
    m_papier.CurrentY -= descente;
    m_papier.FontSize = taille;
}

void Feuille::ecritLigne(std::span<const int> places, const QStringList &textes)
{
    for (std::size_t i = 0; i < places.size(); ++i) {
        const bool dernier = i + 1 == places.size();
        ecrit(places[i], textes.value(qsizetype(i)), dernier ? m_papier.ScaleWidth() : places[i + 1] - ecartTextes);
    }
    m_papier.Print({});
}

void Feuille::ecritRencontre(int gauche, const QString &phrase, const QString &score, int marge)
{
    const int gaucheScore = m_papier.Width() - (m_papier.TextWidth(score) + marge);
    ecrit(gauche, phrase, gaucheScore);
    m_papier.CurrentX = gaucheScore;
    m_papier.Print(score);
}
