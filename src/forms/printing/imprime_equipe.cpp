#include "printing/imprime_equipe.h"

#include "donnees/equipes.h"
#include "grille/flexgrid.h"
#include "partage/partage.h"
#include "printing/feuille.h"
#include "store/passe_erreur.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace {

// Twips
constexpr int gaucheTitre = 2800;
constexpr int gaucheTour = 300;
constexpr int gauchePhrase = 350;
constexpr int margeScore = 2000;
constexpr int hautSuite = 1000; ///< Where a sheet goes on that is longer than its page.
// Points
constexpr double tailleTexte = 14;
constexpr double tailleLisible = 8; ///< Below it, a sentence rather takes two lines.

/// The pages of this sheet bear no number.
constexpr MiseEnPage mise{.bordFin = MiseEnPage::Papier,
                          .bordPied = MiseEnPage::Papier,
                          .pied = 1000,
                          .gauchePied = 200,
                          .numerotee = false};

const QString finDeLigne = u"\r\n"_qs;

/// What follows the first team and its club in a sentence; nothing where it tells of one team.
std::optional<qsizetype> debutSeconde(const QString &phrase)
{
    for (const QString &verbe : {u")  bat "_qs, u")  vs "_qs}) {
        if (const qsizetype place = phrase.indexOf(verbe); place >= 0)
            return place + verbe.size();
    }
    return std::nullopt;
}

/// The number that the text of a team begins with; 0 without one.
int numeroDe(const QString &equipe)
{
    return equipe.trimmed().section(u' ', 0, 0).toInt();
}

/// A row of the sheet: the name of a round, a match whose sentence takes one line or two, or both.
struct Rangee
{
    QString tour = {};
    QStringList phrase = {};
    QString score = {};
};

class FeuilleEquipe
{
public:
    FeuilleEquipe(const Contexte &contexte, Feuille &feuille, QString texte, GenreFeuille genre, bool avecNoms)
        : m_partage(contexte.partage)
        , m_feuille(feuille)
        , m_papier(feuille.papier())
        , m_texte(std::move(texte))
        , m_genre(genre)
        , m_numero(avecNoms || genre == GenreFeuille::Club ? 0 : numeroDe(m_texte))
    {
        m_feuille.setEntete([this] { m_papier.CurrentY = hautSuite; });
    }

    void imprime(const FlexGrid &palmares);

private:
    QString titre() const;
    QStringList corpsClub() const;
    QStringList corpsEquipe() const;
    std::optional<qint64> numeroEquipe() const;
    QString cle() const;
    bool concerne(const QString &phrase) const;
    QStringList enLignes(const QString &phrase);
    std::vector<Rangee> rangees(const FlexGrid &palmares);
    double tailleCommune(const QStringList &corps, const std::vector<Rangee> &rangees);
    int finPhrase() const { return m_papier.Width() - margeScore - ecartTextes; }
    void entete();
    void imprimeCorps(const QStringList &corps);
    void imprimeRangee(const Rangee &rangee);

    Partage &m_partage;
    Feuille &m_feuille;
    Imprimante &m_papier;
    QString m_texte;
    GenreFeuille m_genre;
    int m_numero; ///< Of the team, while the list shows no names; 0 where it does.
};

QString FeuilleEquipe::titre() const
{
    return m_genre == GenreFeuille::Club ? u"Equipes de "_qs + m_texte
                                         : u"Equipe "_qs + m_texte.trimmed().section(u' ', 0, 0);
}

/// A name that breaks the statement leaves the members out.
QStringList FeuilleEquipe::corpsClub() const
{
    QStringList corps{u"Club : "_qs + m_texte};
    PasseErreur([&] {
        std::optional<qint64> equipe;
        for (const donnees::Membre &membre :
             donnees::MembresDuClub(m_partage.BaseDonnees, m_partage.ConcoursCourant, m_texte)) {
            const QString debut =
                equipe == membre.equipe ? QString() : QString::number(membre.equipe) + u" - "_qs + QString(5, u' ');
            equipe = membre.equipe;
            corps += debut + membre.nom + u' ' + membre.prenom + u' ' + membre.licence;
        }
    });
    return corps;
}

QStringList FeuilleEquipe::corpsEquipe() const
{
    QStringList corps;
    PasseErreur([&] {
        const std::optional<qint64> numero = m_numero > 0 ? std::optional<qint64>(m_numero) : numeroEquipe();
        if (!numero)
            return;
        for (const donnees::Membre &membre :
             donnees::MembresDeLEquipe(m_partage.BaseDonnees, m_partage.ConcoursCourant, *numero))
            corps += u"- "_qs + membre.nom + u' ' + membre.prenom + u' ' + membre.licence + u' ' + membre.club;
    });
    return corps;
}

/// Number of the team that has the named member, nothing when there is none. Of namesakes, the one whose team stands in
/// the text. A team shown without a name is not looked for.
std::optional<qint64> FeuilleEquipe::numeroEquipe() const
{
    const QString nomme = cle();
    if (nomme.isEmpty())
        return std::nullopt;
    const std::vector<qint64> numeros = donnees::EquipesDuNom(m_partage.BaseDonnees, m_partage.ConcoursCourant, nomme);
    if (numeros.empty())
        return std::nullopt;
    const qint64 lu = numeroDe(m_texte);
    return std::find(numeros.begin(), numeros.end(), lu) == numeros.end() ? numeros.front() : lu;
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

/// Whether a sentence of the list tells of the team or the club. Between numbers alone, the whole number counts: that
/// of team 3 stands in that of team 13 too.
bool FeuilleEquipe::concerne(const QString &phrase) const
{
    if (m_numero == 0)
        return phrase.contains(m_texte);
    const std::optional<qsizetype> seconde = debutSeconde(phrase);
    return numeroDe(phrase) == m_numero || (seconde && numeroDe(phrase.mid(*seconde)) == m_numero);
}

/// A sentence before its score; one that could not be read on a line goes on below with the second team.
QStringList FeuilleEquipe::enLignes(const QString &phrase)
{
    m_papier.FontSize = tailleLisible;
    const bool longue = m_papier.TextWidth(phrase) > finPhrase() - gauchePhrase;
    const std::optional<qsizetype> seconde = debutSeconde(phrase);
    return longue && seconde ? QStringList{phrase.left(*seconde), phrase.mid(*seconde)} : QStringList{phrase};
}

std::vector<Rangee> FeuilleEquipe::rangees(const FlexGrid &palmares)
{
    std::vector<Rangee> rangees;
    for (int ligne = 1; ligne < palmares.Rows(); ++ligne) {
        Rangee rangee{.tour = palmares.TextMatrix(ligne, 0)};
        const QString phrase = palmares.TextMatrix(ligne, 1);
        if (concerne(phrase)) {
            rangee.phrase = enLignes(phrase);
            rangee.score = palmares.TextMatrix(ligne, 2);
        }
        if (!rangee.tour.isEmpty() || !rangee.phrase.isEmpty())
            rangees.push_back(rangee);
    }
    return rangees;
}

/// The largest letters in which every line of the sheet fits.
double FeuilleEquipe::tailleCommune(const QStringList &corps, const std::vector<Rangee> &rangees)
{
    m_papier.FontSize = tailleTexte;
    const auto fait = [this](const QString &texte, int largeur) {
        m_papier.FontSize = m_feuille.tailleQuiTient(texte, largeur);
    };
    for (const Rangee &rangee : rangees) {
        for (const QString &ligne : rangee.phrase)
            fait(ligne, finPhrase() - gauchePhrase);
        fait(rangee.score, m_papier.ScaleWidth() - (m_papier.Width() - margeScore));
    }
    m_papier.FontItalic = true;
    for (const QString &ligne : corps)
        fait(ligne, m_papier.ScaleWidth());
    m_papier.FontItalic = false;
    return m_papier.FontSize;
}

void FeuilleEquipe::imprime(const FlexGrid &palmares)
{
    entete();
    const QStringList corps = m_genre == GenreFeuille::Club ? corpsClub() : corpsEquipe();
    const std::vector<Rangee> lignes = rangees(palmares);
    m_papier.FontSize = tailleCommune(corps, lignes);
    imprimeCorps(corps);
    for (const Rangee &rangee : lignes)
        imprimeRangee(rangee);
    m_feuille.termine();
}

void FeuilleEquipe::entete()
{
    m_papier.FontSize = 18;
    m_papier.FontBold = false;
    m_papier.CurrentY = 20;
    m_feuille.ecrit(300, m_partage.DateConcours + u' ' + m_partage.LieuConcours, m_papier.ScaleWidth());
    m_papier.Print(finDeLigne + finDeLigne);
    m_feuille.ecritTitre(20, gaucheTitre, titre());
    m_papier.Print({});
    m_papier.FontSize = tailleTexte;
    m_papier.Print(finDeLigne);
    m_papier.FontBold = false;
}

/// The members, line after line: a large club fills more than a page.
void FeuilleEquipe::imprimeCorps(const QStringList &corps)
{
    m_papier.FontItalic = true;
    for (const QString &ligne : corps) {
        m_feuille.ecrit(0, ligne, m_papier.ScaleWidth());
        m_papier.Print({});
        m_feuille.saute();
    }
    m_papier.Print({});
    m_feuille.saute();
    m_papier.FontItalic = false;
    m_papier.CurrentY += 100;
    m_papier.Line(0, m_papier.CurrentY, m_papier.Width(), m_papier.CurrentY);
}

void FeuilleEquipe::imprimeRangee(const Rangee &rangee)
{
    m_papier.CurrentY += 30;
    if (!rangee.tour.isEmpty()) {
        m_papier.FontBold = true;
        m_papier.CurrentY += 100;
        m_papier.CurrentX = gaucheTour;
        m_papier.Print(rangee.tour);
        m_papier.FontBold = false;
    }
    for (const QString &ligne : rangee.phrase) {
        m_feuille.ecrit(gauchePhrase, ligne, finPhrase());
        if (&ligne == &rangee.phrase.back())
            m_feuille.ecrit(m_papier.Width() - margeScore, rangee.score, m_papier.ScaleWidth());
        m_papier.Print({});
    }
    m_feuille.saute();
}

} // namespace

void ImprimeEquipe(const Contexte &contexte, const FlexGrid &palmares, bool avecNoms, const QString &texte,
                   GenreFeuille genre)
{
    if (const std::unique_ptr<Feuille> feuille = Feuille::ouvre(contexte, mise))
        FeuilleEquipe(contexte, *feuille, texte, genre, avecNoms).imprime(palmares);
}
