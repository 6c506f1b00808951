#include "printing/imprime_tirage.h"

#include "app/routines.h"
#include "engine/clubs.h"
#include "printing/cadre.h"


using store::Recordset;

namespace {

/// Heads of the ranking's columns and their places.
struct Colonne
{
    int x;
    QStringView titre;
};
constexpr Colonne colonnes[] = {{300, u"Clt  "}, {900, u"Equipe"}, {6000, u"J"},  {6500, u"G"},
                                {7000, u"P"},    {7500, u"Pp"},    {8500, u"Pc"}, {9500, u"Ga"}};

constexpr int largeurEquipe = 3;
constexpr int traitGauche = 300;
constexpr int traitDroit = 10500;

/// A drawn sheet of one round or of the ranking.
class FeuilleTirage
{
public:
    FeuilleTirage(const Contexte &contexte, Cadre &cadre, ModeTirage mode, QString titre, QString etat)
        : m_contexte(contexte)
        , m_cadre(cadre)
        , m_papier(cadre.papier())
        , m_mode(mode)
        , m_titre(std::move(titre))
        , m_etat(std::move(etat))
        , m_equipes(contexte.partage.BaseDonnees.OpenRecordset(u"Equipes", store::dbOpenTable))
    {
        m_equipes.Index(u"PrimaryKey");
        m_cadre.setPied(Cadre::piedTirage);
        m_cadre.setEntete([this] { entete(); });
    }

    void tirage(int tour);
    void classement(bool detail);

private:
    void entete();
    void titresColonnes();
    void rencontre(qint64 equipe1, qint64 equipe2);
    void cote(int x, const QString &numero, const QString &club, bool fin);
    QString clubDe(qint64 equipe);
    void ligne(const Recordset &rang, const QString &position);
    void membres(qint64 equipe);
    QString noteClub(const QString &licence) const;
    int limite() const { return m_papier.Height() - Cadre::margePage; }

    const Contexte &m_contexte;
    Cadre &m_cadre;
    Imprimante &m_papier;
    ModeTirage m_mode;
    QString m_titre;
    QString m_etat;
    Recordset m_equipes;
};

void FeuilleTirage::entete()
{
    m_papier.setOrientation(Orientation::Portrait);
    m_papier.FontBold = false;
    m_papier.FontSize = 18;
    m_papier.CurrentX = 400;
    m_papier.CurrentY = 300;
    m_cadre.ecritConcours(m_papier.ScaleWidth() - 4500);
    m_papier.FontSize = 28;
    m_papier.FontBold = true;
    m_papier.CurrentX = 2800;
    m_papier.Print(m_titre);
    m_papier.FontSize = 14;
    m_papier.FontBold = true;
    m_papier.Print({});
    if (m_mode == ModeTirage::Tirage) {
        m_papier.CurrentX = m_papier.Width() - 1800;
        m_papier.Print(u"Terrain"_qs, false);
    } else {
        m_papier.CurrentX = traitGauche;
        m_papier.FontItalic = true;
        m_papier.Print(m_etat);
        m_papier.FontItalic = false;
    }
    titresColonnes();
}

void FeuilleTirage::titresColonnes()
{
    const auto trait = [this] {
        m_papier.Line(traitGauche, m_papier.CurrentY, traitDroit, m_papier.CurrentY);
    };
    m_papier.CurrentY += 350;
    trait();
    m_papier.CurrentY += 120;
    if (m_mode == ModeTirage::Classement) {
        for (const Colonne &colonne : colonnes) {
            m_papier.CurrentX = colonne.x;
            m_papier.Print(colonne.titre.toString(), &colonne == std::end(colonnes) - 1);
        }
    }
    trait();
    m_papier.CurrentY += 40;
    trait();
}

QString FeuilleTirage::clubDe(qint64 equipe)
{
    m_equipes.Seek(u">=", {m_contexte.partage.ConcoursCourant, equipe, 0});
    return u" ("_qs + (m_equipes.NoMatch() ? QString() : m_equipes[u"societe"].texte()) + u')';
}

void FeuilleTirage::tirage(int tour)
{
    Partage &partage = m_contexte.partage;
    m_cadre.commence();
    const QString duTour = u"where concours = %1 and tour = %2"_qs.arg(partage.ConcoursCourant).arg(tour);
    const qint64 nombre = ValeurUnique(partage, u"Select count(equipe_1) as nbe from scores "_qs + duTour).entier();
    if (nombre > 0) {
        m_papier.CurrentX = 0;
        m_papier.Print(u"        "_qs + QString::number(nombre * 2) + u" Equipes"_qs);
        m_papier.CurrentY += 150;
        Recordset scores =
            partage.BaseDonnees.OpenRecordset(u"select * from scores "_qs + duTour, store::dbOpenSnapshot);
        for (; !scores.Eof(); scores.MoveNext()) {
            PasseErreur([&] { rencontre(scores[u"Equipe_1"].entier(), scores[u"Equipe_2"].entierOu(0)); });
            m_cadre.saute(limite());
            m_papier.CurrentY += 400;
        }
    }
    m_cadre.termine();
}

void FeuilleTirage::rencontre(qint64 equipe1, qint64 equipe2)
{
    const bool exempt = equipe2 == 0;
    cote(100, aligneDroite(equipe1, largeurEquipe), clubDe(equipe1) + u' ', false);
    m_papier.CurrentY -= 200;
    cote(m_papier.Width() / 2, exempt ? QString() : aligneDroite(equipe2, largeurEquipe),
         exempt ? m_contexte.partage.mes(42) : clubDe(equipe2) + u' ', true);
    m_papier.CurrentY += 150;
    m_papier.Line(0, m_papier.CurrentY, m_papier.Width(), m_papier.CurrentY);
}

/// One team: its number large, its club beside it a little lower.
void FeuilleTirage::cote(int x, const QString &numero, const QString &club, bool fin)
{
    m_papier.CurrentX = x;
    m_papier.FontSize = 33;
    m_papier.FontBold = true;
    m_papier.Print(numero, false);
    m_papier.CurrentY += 200;
    m_papier.FontSize = 14;
    m_papier.FontBold = false;
    m_papier.Print(club, fin);
}

void FeuilleTirage::classement(bool detail)
{
    m_cadre.commence();
    m_papier.CurrentY += 550;
    Recordset rangs = m_contexte.partage.BaseDonnees.OpenRecordset(u"tbclass", store::dbOpenTable);
    rangs.Index(u"rankkey");
    qint64 position = 0;
    qint64 gagneesGardees = 99999;
    qint64 gaGarde = 0;
    for (; !rangs.Eof(); rangs.MoveNext()) {
        ++position;
        const qint64 gagnees = rangs[u"gagnées"].entier();
        const bool sansPoints = rangs[u"pp"].estNull() || rangs[u"pc"].estNull();
        bool montre = false;
        if (gagnees < gagneesGardees) {
            montre = true;
            gagneesGardees = gagnees;
            gaGarde = rangs[u"ga"].entierOu(0);
        } else if (sansPoints) {
            montre = gaGarde > 0;
        } else if (rangs[u"ga"].entier() < gaGarde) {
            montre = true;
            gaGarde = rangs[u"ga"].entier();
        }
        PasseErreur([&] { ligne(rangs, montre ? aligneDroite(position, 4) : QString()); });
        m_cadre.saute(limite());
        m_papier.CurrentY += detail ? 700 : 350;
        if (!detail)
            continue;
        m_cadre.saute(limite()); // the step down may have led into the footer
        PasseErreur([&] { membres(rangs[u"Equipe"].entier()); });
    }
    m_cadre.termine();
}

void FeuilleTirage::ligne(const Recordset &rang, const QString &position)
{
    m_papier.CurrentX = colonnes[0].x;
    m_papier.Print(position, false);
    m_papier.Print(u"  - "_qs, false);
    m_papier.CurrentX = colonnes[1].x;
    const qint64 equipe = rang[u"Equipe"].entier();
    m_papier.Print(aligneDroite(equipe, 4), false);
    m_papier.FontSize = 10;
    m_papier.Print(clubDe(equipe), false);
    m_papier.FontSize = 14;
    const auto nombre = [&](int colonne, const QString &texte, int largeur) {
        m_papier.CurrentX = colonnes[colonne].x;
        m_papier.Print(aligneDroite(texte, largeur), colonne == int(std::size(colonnes)) - 1);
    };
    nombre(2, QString::number(rang[u"gagnées"].entier() + rang[u"perdues"].entier()), 2);
    nombre(3, rang[u"gagnées"].texte(), 2);
    nombre(4, rang[u"perdues"].texte(), 2);
    nombre(5, rang[u"pp"].texte(), 4);
    nombre(6, rang[u"pc"].texte(), 4);
    nombre(7, rang[u"ga"].texte(), 4);
}

void FeuilleTirage::membres(qint64 equipe)
{
    const qint64 concours = m_contexte.partage.ConcoursCourant;
    const bool gras = m_papier.FontBold;
    m_equipes.Seek(u">=", {concours, equipe, 0});
    if (m_equipes.NoMatch())
        return;
    for (; !m_equipes.Eof() && m_equipes[u"Equipe"].entier() == equipe && m_equipes[u"concours"].entier() == concours;
         m_equipes.MoveNext()) {
        // The head of a new page leaves its own letters behind.
        m_papier.FontSize = 12;
        m_papier.FontBold = false;
        const QString nom = m_equipes[u"nom"].texte();
        const QString prenom = m_equipes[u"prenom"].texte();
        const QString licence = m_equipes[u"licence"].texte();
        const QString note = m_equipes[u"Societe"].texte() == moteur::clubPanache ? noteClub(licence) : QString();
        m_papier.CurrentX = 1450;
        const bool vide = ((nom + prenom + licence).trimmed() + note).isEmpty();
        m_papier.Print(vide ? u"."_qs : nom + u' ' + prenom + u" ("_qs + licence + note + u')');
        m_cadre.saute(limite());
    }
    m_papier.FontSize = 14;
    m_papier.FontBold = gras;
}

/// The club that a member of a mixed team has among the known players.
QString FeuilleTirage::noteClub(const QString &licence) const
{
    QString note;
    PasseErreur([&] {
        const Recordset joueur = m_contexte.partage.BaseDonnees.OpenRecordset(
            u"select * from equipes where concours=0 and licence="_qs + EntreApostrophes(licence), store::dbOpenSnapshot);
        if (!joueur.Eof())
            note = u" -"_qs + joueur[u"Societe"].texte() + u'-';
    });
    return note;
}

} // namespace

void ImprimeTirage(const Contexte &contexte, ModeTirage mode, bool detail, int tour, const QString &etat)
{
    const std::unique_ptr<Cadre> cadre = Cadre::ouvre(contexte);
    if (cadre == nullptr)
        return;
    const QString titre = mode == ModeTirage::Tirage ? u"Tour N° "_qs + QString::number(tour) : u"Classement"_qs;
    FeuilleTirage feuille(contexte, *cadre, mode, titre, etat);
    if (mode == ModeTirage::Tirage)
        feuille.tirage(tour);
    else
        feuille.classement(detail);
}
