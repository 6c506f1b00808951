#include "printing/imprime_equipe.h"

#include "app/routines.h"
#include "platform/flexgrid.h"
#include "printing/cadre.h"

using store::Recordset;

namespace {

// Twips
constexpr int gaucheTitre = 2800;
constexpr int gaucheTour = 300;
constexpr int gauchePhrase = 350;
constexpr int margeScore = 2000;
constexpr int gauchePied = 200;
constexpr int hauteurPied = 1000;
constexpr int hautSuite = 1000; ///< Where a sheet goes on that is longer than its page.
constexpr int ecartScore = 100; ///< At least, between a sentence and its score.
constexpr double tailleMinimale = 5; ///< Points.
constexpr double tailleLisible = 8; ///< Below it, a sentence rather takes two lines.

const QString finDeLigne = u"\r\n"_qs;

class FeuilleEquipe
{
public:
    FeuilleEquipe(const Contexte &contexte, Cadre &cadre, QString texte, GenreFeuille genre)
        : m_partage(contexte.partage)
        , m_papier(cadre.papier())
        , m_texte(std::move(texte))
        , m_genre(genre)
    {
    }

    void imprime(const FlexGrid &palmares);

private:
    QString titre() const;
    QString corpsClub() const;
    QString corpsEquipe() const;
    QString numeroEquipe() const;
    QString cle() const;
    Recordset lit(const QString &sql) const { return m_partage.BaseDonnees.OpenRecordset(sql, store::dbOpenSnapshot); }
    QString duConcours() const { return u" and concours = "_qs + QString::number(m_partage.ConcoursCourant); }
    void entete();
    void corps();
    void imprimeJusqua(int droite, const QString &texte, bool retour);
    void imprimePhrase(const QString &phrase);
    void rangee(const FlexGrid &palmares, int ligne);
    void saute();
    void pied();

    Partage &m_partage;
    Imprimante &m_papier;
    QString m_texte;
    GenreFeuille m_genre;
};

QString FeuilleEquipe::titre() const
{
    return (m_genre == GenreFeuille::Club ? u"Equipes de "_qs + m_texte
                                          : u"Equipe "_qs + m_texte.trimmed().section(u' ', 0, 0))
        + finDeLigne;
}

/// A name that breaks the statement leaves the members out.
QString FeuilleEquipe::corpsClub() const
{
    QString corps = u"Club : "_qs + m_texte + finDeLigne;
    PasseErreur([&] {
        Recordset membres = lit(u"select equipe, nom, prenom, societe, licence from equipes where societe = "_qs
                                + EntreApostrophes(m_texte) + duConcours() + u" order by equipe, doublon"_qs);
        std::optional<qint64> equipe;
        for (; !membres.Eof(); membres.MoveNext()) {
            const qint64 numero = membres[u"equipe"].entier();
            if (equipe != numero)
                corps += QString::number(numero) + u" - "_qs + QString(5, u' ');
            equipe = numero;
            corps += membres[u"nom"].texte() + u' ' + membres[u"prenom"].texte() + u' ' + membres[u"licence"].texte()
                + finDeLigne;
        }
    });
    return corps;
}

QString FeuilleEquipe::corpsEquipe() const
{
    QString corps;
    PasseErreur([&] {
        const QString numero = numeroEquipe();
        if (numero.isEmpty())
            return;
        Recordset membres = lit(u"select nom, prenom, societe, licence from equipes where equipe= "_qs + numero
                                + duConcours() + u" order by doublon"_qs);
        for (; !membres.Eof(); membres.MoveNext())
            corps += u"- "_qs + membres[u"nom"].texte() + u' ' + membres[u"prenom"].texte() + u' '
                + membres[u"licence"].texte() + u' ' + membres[u"societe"].texte() + finDeLigne;
    });
    return corps;
}

/// Number of the team that has the named member, empty when there is none. Of namesakes, the one whose team stands in
/// the text. A team shown without a name is not looked for.
QString FeuilleEquipe::numeroEquipe() const
{
    const QString nomme = cle();
    if (nomme.isEmpty())
        return {};
    Recordset equipes = lit(u"select equipe from equipes where trim([nom]) + left(trim([prenom]),1) like "_qs
                            + EntreApostrophes(nomme) + duConcours());
    const QString lu = m_texte.trimmed().section(u' ', 0, 0);
    QString numero;
    for (; !equipes.Eof() && numero != lu; equipes.MoveNext()) {
        const QString trouve = equipes[u"equipe"].texte();
        if (numero.isEmpty() || trouve == lu)
            numero = trouve;
    }
    return numero;
}

/// Surname and first initial: what follows the number, without the blank between them and the one at the end.
QString FeuilleEquipe::cle() const
{
    QString nom = m_texte.section(u' ', 1);
    if (nom.endsWith(u' '))
        nom.chop(1);
    const qsizetype blanc = nom.lastIndexOf(u' ');
    return blanc < 0 ? nom : nom.left(blanc).trimmed() + nom.mid(blanc + 1);
}

void FeuilleEquipe::imprime(const FlexGrid &palmares)
{
    entete();
    corps();
    for (int ligne = 1; ligne < palmares.Rows(); ++ligne)
        rangee(palmares, ligne);
    pied();
    m_papier.EndDoc();
    m_papier.setOrientation(Orientation::Portrait);
}

void FeuilleEquipe::entete()
{
    m_papier.FontSize = 18;
    m_papier.FontBold = false;
    m_papier.CurrentX = 300;
    m_papier.CurrentY = 20;
    m_papier.Print(m_partage.DateConcours + u' ' + m_partage.LieuConcours);
    m_papier.Print(finDeLigne);
    m_papier.FontSize = 20;
    m_papier.FontBold = true;
    m_papier.CurrentX = gaucheTitre;
    imprimeJusqua(m_papier.ScaleWidth(), titre(), true);
    m_papier.FontSize = 14;
    m_papier.Print(finDeLigne);
    m_papier.FontBold = false;
}

/// The members, line after line: a large club fills more than a page.
void FeuilleEquipe::corps()
{
    m_papier.FontItalic = true;
    const QString texte = m_genre == GenreFeuille::Club ? corpsClub() : corpsEquipe();
    for (const QString &ligne : texte.split(finDeLigne)) {
        imprimeJusqua(m_papier.ScaleWidth(), ligne, true);
        saute();
    }
    m_papier.FontItalic = false;
    m_papier.CurrentY += 100;
    m_papier.Line(0, m_papier.CurrentY, m_papier.Width(), m_papier.CurrentY);
}

/// Prints a text in letters small enough to end before \p droite, so that nothing is cut or printed over.
void FeuilleEquipe::imprimeJusqua(int droite, const QString &texte, bool retour)
{
    const double taille = m_papier.FontSize;
    const double place = droite - m_papier.CurrentX;
    while (m_papier.FontSize > tailleMinimale && m_papier.TextWidth(texte) > place)
        m_papier.FontSize -= 0.5;
    m_papier.Print(texte, retour);
    m_papier.FontSize = taille;
}

/// Prints a sentence before its score; a very long one goes on below with the second team.
void FeuilleEquipe::imprimePhrase(const QString &phrase)
{
    const int droite = m_papier.Width() - margeScore - ecartScore;
    const double reduite = m_papier.TextWidth(phrase) * tailleLisible / m_papier.FontSize;
    qsizetype coupe = 0;
    if (reduite > droite - m_papier.CurrentX) {
        for (const QString &verbe : {u")  bat "_qs, u")  vs "_qs}) {
            if (const qsizetype place = phrase.indexOf(verbe); place >= 0)
                coupe = place + verbe.size();
        }
    }
    if (coupe > 0) {
        imprimeJusqua(droite, phrase.left(coupe), true);
        m_papier.CurrentX = gauchePhrase;
    }
    imprimeJusqua(droite, phrase.mid(coupe), false);
}

void FeuilleEquipe::rangee(const FlexGrid &palmares, int ligne)
{
    m_papier.FontSize = 14;
    m_papier.CurrentY += 30;
    const QString tour = palmares.TextMatrix(ligne, 0);
    if (!tour.isEmpty()) {
        m_papier.FontBold = true;
        m_papier.CurrentY += 100;
        m_papier.CurrentX = gaucheTour;
        m_papier.Print(tour);
    }
    m_papier.FontBold = false;
    const QString phrase = palmares.TextMatrix(ligne, 1);
    if (phrase.contains(m_texte)) {
        m_papier.CurrentX = gauchePhrase;
        imprimePhrase(phrase);
        m_papier.CurrentX = m_papier.Width() - margeScore;
        m_papier.Print(palmares.TextMatrix(ligne, 2));
    }
    saute();
}

void FeuilleEquipe::saute()
{
    if (m_papier.CurrentY <= m_papier.Height() - Cadre::margePage)
        return;
    const double taille = m_papier.FontSize;
    const bool italique = m_papier.FontItalic;
    m_papier.FontItalic = false;
    pied();
    m_papier.NewPage();
    m_papier.CurrentY = hautSuite;
    m_papier.FontSize = taille;
    m_papier.FontItalic = italique;
}

/// The pages of this sheet bear no number.
void FeuilleEquipe::pied()
{
    m_papier.FontBold = false;
    m_papier.FontSize = 10;
    m_papier.CurrentY = m_papier.Height() - hauteurPied;
    m_papier.CurrentX = gauchePied;
    m_papier.Print(adresseEditeur);
}

} // namespace

void ImprimeEquipe(const Contexte &contexte, const FlexGrid &palmares, const QString &texte, GenreFeuille genre)
{
    if (const std::unique_ptr<Cadre> cadre = Cadre::ouvre(contexte))
        FeuilleEquipe(contexte, *cadre, texte, genre).imprime(palmares);
}
