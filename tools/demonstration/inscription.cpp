#include "inscription.h"

#include "store/valeur.h"

namespace demonstration {

namespace {

const QString forme = u"Eequipes"_qs;

QString indice(QStringView controle, int place)
{
    return u"%1_%2"_qs.arg(controle).arg(place);
}

QString nomSaisi(const EquipeDuJour &equipe, int place)
{
    return place == 0 && !equipe.nomMalSaisi.isEmpty() ? equipe.nomMalSaisi : equipe.joueurs[size_t(place)].nom;
}

} // namespace

Inscription::Inscription(Programme &programme, Operateur &operateur, BoitesDuJour &boites, Photographe &photographe)
    : m_programme(programme)
    , m_main(operateur)
    , m_boites(boites)
    , m_photographe(photographe)
{
}

void Inscription::ouvre()
{
    m_main.clique(m_main.controle(u"Torvik"_qs, u"f_equipes"_qs));
    m_main.exigeFocus(forme, u"LicenceJ_0"_qs);
}

void Inscription::inscrit(const EquipeDuJour &equipe)
{
    if (!m_main.aLeFocus(forme, u"LicenceJ_0"_qs))
        m_main.clique(m_main.controle(forme, u"LicenceJ_0"_qs));
    const int propose = int(store::Val(m_main.texte(forme, u"Equipe"_qs)));
    exige(propose == equipe.numero,
          u"Le numéro proposé est %1, l'équipe qui s'inscrit est la %2."_qs.arg(propose).arg(equipe.numero));
    for (int place = 0; place < int(equipe.joueurs.size()); ++place)
        saisitJoueur(equipe, place);
    saisitClub(equipe);
    photographie(equipe);
    enregistre();
    verifieBase(equipe, nomSaisi(equipe, 0));
}

void Inscription::saisitJoueur(const EquipeDuJour &equipe, int place)
{
    const Joueur &joueur = equipe.joueurs[size_t(place)];
    m_main.exigeFocus(forme, indice(u"LicenceJ", place));
    m_main.tape(joueur.licence);
    m_main.entree();
    m_main.exigeFocus(forme, indice(u"NomJ", place));
    if (equipe.arrivee == Arrivee::Main) {
        m_main.tape(nomSaisi(equipe, place));
    } else {
        m_main.exigeTexte(forme, indice(u"NomJ", place), joueur.nom);
        m_main.exigeTexte(forme, indice(u"PrénomJ", place), joueur.prenom);
    }
    m_main.entree();
    m_main.exigeFocus(forme, indice(u"PrénomJ", place));
    if (equipe.arrivee == Arrivee::Main)
        m_main.tape(joueur.prenom);
    m_main.entree();
}

/// The club that the licences have brought stands already; unknown licences make the team a mixed one until its club is
/// typed. Leaving a club that is not known yet asks whether to add it.
void Inscription::saisitClub(const EquipeDuJour &equipe)
{
    m_main.exigeFocus(forme, u"Société"_qs);
    if (equipe.arrivee == Arrivee::Main) {
        m_main.exigeTexte(forme, u"Société"_qs, u"*Panachée"_qs);
        m_main.remplace(equipe.club);
    }
    m_main.exigeTexte(forme, u"Société"_qs, equipe.club);
    const int clubsAjoutes = m_boites.fois(Boite::ClubNouveau);
    m_main.entree();
    m_main.exigeFocus(forme, m_boites.fois(Boite::ClubNouveau) > clubsAjoutes ? u"NomJ_0"_qs : u"Okc"_qs);
}

void Inscription::enregistre()
{
    if (m_main.aLeFocus(forme, u"Okc"_qs))
        m_main.entree();
    else
        m_main.clique(m_main.controle(forme, u"Okc"_qs));
    m_main.exigeTexte(forme, u"Société"_qs, QString());
    m_main.exigeTexte(forme, u"LicenceJ_0"_qs, QString());
}

void Inscription::photographie(const EquipeDuJour &equipe)
{
    QWidget &fenetre = *m_main.fenetre(forme);
    switch (equipe.arrivee) {
    case Arrivee::Licences:
        m_photographe.prend(u"equipes-licences", fenetre);
        break;
    case Arrivee::Panachee:
        m_photographe.prend(u"equipes-panachee", fenetre);
        break;
    case Arrivee::Main:
        m_photographe.prend(u"equipes-main", fenetre);
        break;
    }
}

void Inscription::corrige(const EquipeDuJour &equipe)
{
    m_main.clique(m_main.controle(forme, u"Equipe"_qs));
    m_main.exigeFocus(forme, u"Equipe"_qs);
    m_main.remplace(QString::number(equipe.numero));
    m_main.entree();
    m_main.exigeFocus(forme, u"Société"_qs);
    m_main.exigeTexte(forme, u"Société"_qs, equipe.club);
    m_main.exigeTexte(forme, u"NomJ_0"_qs, equipe.nomMalSaisi);
    m_main.clique(m_main.controle(forme, u"NomJ_0"_qs));
    m_main.remplace(equipe.joueurs.front().nom);
    m_photographe.prend(u"equipes-correction", *m_main.fenetre(forme));
    enregistre();
    verifieBase(equipe, equipe.joueurs.front().nom);
}

void Inscription::verifieBase(const EquipeDuJour &equipe, const QString &nom) const
{
    store::Database &base = m_programme.partage().BaseDonnees;
    store::Recordset lignes =
        base.OpenRecordset(u"select * from equipes where concours = %1 and equipe = %2 order by doublon"_qs
                               .arg(m_programme.partage().ConcoursCourant)
                               .arg(equipe.numero),
                           store::dbOpenSnapshot);
    int place = 0;
    for (; !lignes.Eof(); lignes.MoveNext(), ++place) {
        exige(place < int(equipe.joueurs.size()), u"L'équipe %1 a trop de joueurs."_qs.arg(equipe.numero));
        const Joueur &joueur = equipe.joueurs[size_t(place)];
        exige(lignes[u"nom"].texte() == (place == 0 ? nom : joueur.nom) && lignes[u"prenom"].texte() == joueur.prenom
                  && lignes[u"licence"].texte() == joueur.licence && lignes[u"societe"].texte() == equipe.club,
              u"Le joueur %1 de l'équipe %2 n'est pas enregistré tel qu'il a été saisi."_qs.arg(place + 1).arg(
                  equipe.numero));
    }
    exige(place == int(equipe.joueurs.size()),
          u"L'équipe %1 est enregistrée avec %2 joueur(s)."_qs.arg(equipe.numero).arg(place));
}

} // namespace demonstration
