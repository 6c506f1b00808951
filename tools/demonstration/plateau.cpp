#include "plateau.h"

#include "partage/base.h"
#include "partage/routines.h"
#include "store/database.h"

#include <QDate>

namespace demonstration {

namespace {

const std::vector<QString> noms{u"ARNAUD"_qs,   u"AUBERT"_qs,   u"BARTHÉLEMY"_qs, u"BLANC"_qs,      u"BONNET"_qs,
                                u"BOYER"_qs,    u"BRUN"_qs,     u"CHABERT"_qs,    u"COULON"_qs,     u"DELORME"_qs,
                                u"DUMAS"_qs,    u"DUPONT"_qs,   u"DURAND"_qs,     u"ESCOFFIER"_qs,  u"FABRE"_qs,
                                u"FAURE"_qs,    u"FOURNIER"_qs, u"GARCIN"_qs,     u"GIRAUD"_qs,     u"GUÉRIN"_qs,
                                u"HONORAT"_qs,  u"IMBERT"_qs,   u"JAUFFRET"_qs,   u"JOURDAN"_qs,    u"LAMBERT"_qs,
                                u"LE GOFF"_qs,  u"LIEUTAUD"_qs, u"MARTIN"_qs,     u"MEYNIER"_qs,    u"MICHEL"_qs,
                                u"MOREL"_qs,    u"NÉGREL"_qs,   u"OLIVIER"_qs,    u"PASCAL"_qs,     u"PELLEGRIN"_qs,
                                u"PERRIN"_qs,   u"RAYNAUD"_qs,  u"REBOUL"_qs,     u"RICARD"_qs,     u"ROUX"_qs,
                                u"SAUVAIRE"_qs, u"SILVE"_qs,    u"TARDIEU"_qs,    u"TOURNIAIRE"_qs, u"VIDAL"_qs,
                                u"VINCENT"_qs};
const std::vector<QString> prenoms{u"Alain"_qs,     u"André"_qs,     u"Bernard"_qs,  u"Béatrice"_qs, u"Chantal"_qs,
                                   u"Christian"_qs, u"Claude"_qs,    u"Daniel"_qs,   u"Didier"_qs,   u"Émile"_qs,
                                   u"Éric"_qs,      u"Françoise"_qs, u"Gérard"_qs,   u"Gilles"_qs,   u"Hélène"_qs,
                                   u"Henri"_qs,     u"Jacques"_qs,   u"Jean-Luc"_qs, u"Joëlle"_qs,   u"Loïc"_qs,
                                   u"Lucien"_qs,    u"Marcel"_qs,    u"Marie-Jo"_qs, u"Maurice"_qs,  u"Michèle"_qs,
                                   u"Nathalie"_qs,  u"Noël"_qs,      u"Patrick"_qs,  u"Paul"_qs,     u"Raymond"_qs,
                                   u"René"_qs,      u"Roger"_qs,     u"Simone"_qs,   u"Sylvain"_qs,  u"Thérèse"_qs,
                                   u"Yves"_qs};
const std::vector<QString> enseignes{u"Boule Ferrée"_qs,     u"Boule d'Or"_qs,    u"Amicale Bouliste"_qs,
                                     u"Joyeux Pointeurs"_qs, u"Pétanque Club"_qs, u"Les Platanes"_qs,
                                     u"Carreau"_qs,          u"Cochonnet"_qs};
const std::vector<QString> villages{u"Aiglun"_qs,     u"Aubagne"_qs,   u"Banon"_qs,      u"Bédoin"_qs,   u"Cabriès"_qs,
                                    u"Carcès"_qs,     u"Cotignac"_qs,  u"Draguignan"_qs, u"Éguilles"_qs, u"Flassans"_qs,
                                    u"Fuveau"_qs,     u"Gardanne"_qs,  u"Gordes"_qs,     u"Istres"_qs,   u"Lambesc"_qs,
                                    u"Lorgues"_qs,    u"Mallemort"_qs, u"Manosque"_qs,   u"Mison"_qs,    u"Oraison"_qs,
                                    u"Pélissanne"_qs, u"Pertuis"_qs,   u"Rians"_qs,      u"Rognac"_qs,   u"Salernes"_qs,
                                    u"Sisteron"_qs,   u"Trets"_qs,     u"Velaux"_qs,     u"Vidauban"_qs, u"Volx"_qs};

const QString panachee = u"*Panachée"_qs;
constexpr int periodeMain = 6;
constexpr int periodePanachee = 8;
constexpr int periodeFaute = 12;
constexpr int largeurLicence = 8;
constexpr int premiereLicence = 8'310'000;
constexpr int premiereLicenceInconnue = 9'700'000;

std::vector<QString> nommeClubs(int nombre)
{
    std::vector<QString> clubs;
    for (int i = 0; i < nombre; ++i) {
        const int village = i % int(villages.size());
        const int enseigne = (i + i / int(villages.size())) % int(enseignes.size());
        QString nom = enseignes[size_t(enseigne)] + u' ' + villages[size_t(village)];
        if (const int serie = i / int(villages.size() * enseignes.size()); serie > 0)
            nom += u" %1"_qs.arg(serie + 1);
        clubs.push_back(nom);
    }
    return clubs;
}

/// The same name with a letter typed twice.
QString avecFaute(QString nom)
{
    return nom.insert(2, nom.at(1));
}

} // namespace

Plateau::Plateau(const Options &options, Hasard &hasard)
    : m_options(options)
    , m_clubs(nommeClubs(options.clubs))
{
    m_equipes.reserve(size_t(options.equipes));
    for (int numero = 1; numero <= options.equipes; ++numero)
        m_equipes.push_back(compose(numero, hasard));
}

QString Plateau::clubDe(Hasard &hasard) const
{
    if (m_clubs.size() == 1 || hasard.chance(m_options.hote))
        return m_clubs.front();
    // Without a host all clubs are alike.
    return m_clubs[size_t(hasard.entre(m_options.hote > 0 ? 1 : 0, int(m_clubs.size()) - 1))];
}

EquipeDuJour Plateau::compose(int numero, Hasard &hasard)
{
    EquipeDuJour equipe;
    equipe.numero = numero;
    equipe.force = hasard.entre(0, 100);
    equipe.club = clubDe(hasard);
    if (numero % periodeMain == 2)
        equipe.arrivee = Arrivee::Main;
    else if (numero % periodePanachee == 4 && m_options.joueurs() > 1 && m_clubs.size() > 1)
        equipe.arrivee = Arrivee::Panachee;
    const int licences = equipe.arrivee == Arrivee::Main ? premiereLicenceInconnue : premiereLicence;
    for (int place = 0; place < m_options.joueurs(); ++place)
        equipe.joueurs.push_back(
            {ZeroPad(licences + ++m_licences, largeurLicence), hasard.parmi(noms), hasard.parmi(prenoms), equipe.club});
    if (equipe.arrivee == Arrivee::Panachee) {
        QString &autre = equipe.joueurs.back().club;
        while (autre == equipe.club)
            autre = hasard.parmi(m_clubs);
        equipe.club = panachee;
    }
    if (numero % periodeFaute == 2)
        equipe.nomMalSaisi = avecFaute(equipe.joueurs.front().nom);
    return equipe;
}

void Plateau::preenregistre(const QString &base) const
{
    store::Database ouverte = store::DBEngine().Workspaces(0).OpenDatabase(base, false, false, connexionBase);
    ouverte.EcritEnGroupe([&] {
        store::Recordset joueurs = ouverte.OpenRecordset(u"equipes", store::dbOpenTable);
        int numero = 0;
        for (const EquipeDuJour &equipe : m_equipes) {
            if (equipe.arrivee == Arrivee::Main)
                continue;
            for (const Joueur &joueur : equipe.joueurs) {
                joueurs.AddNew();
                joueurs[u"concours"] = 0;
                joueurs[u"equipe"] = ++numero;
                joueurs[u"nom"] = joueur.nom;
                joueurs[u"prenom"] = joueur.prenom;
                joueurs[u"licence"] = joueur.licence;
                joueurs[u"societe"] = joueur.club;
                joueurs[u"sexe"] = u"M";
                joueurs[u"ne"] = QDate(1950 + numero % 55, 1 + numero % 12, 1 + numero % 28);
                joueurs.Update();
            }
        }
    });
}

} // namespace demonstration
