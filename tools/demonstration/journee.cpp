#include "journee.h"

#include "app/torvik.h"

#include <QElapsedTimer>
#include <QTest>

namespace demonstration {

namespace {

const QString editeur = u"Econcours"_qs;

} // namespace

Journee::Journee(const Options &options, const Plateau &plateau, Hasard &hasard)
    : m_options(options)
    , m_plateau(plateau)
    , m_photographe(options.dossier)
    , m_boites(m_photographe)
    , m_alea(options.graine)
    , m_programme(options.dossier, m_alea, m_horloge, m_boites)
    , m_main(m_programme, m_boites)
    , m_inscription(m_programme, m_main, m_boites, m_photographe)
    , m_impressions(m_main, m_boites, m_photographe, options.dossier)
    , m_registre(m_programme, m_main, m_boites, m_photographe, m_impressions, plateau)
    , m_outils(m_main, m_boites, m_photographe, m_horloge)
    , m_affichage(m_main, m_photographe)
    , m_visite(m_programme, m_main, m_photographe)
    , m_resultats(m_programme, m_main, plateau, hasard, m_photographe)
{
}

void Journee::joue()
{
    demarre();
    m_registre.preenregistre();
    creeConcours();
    inscritEquipes();
    m_registre.choisitJoueur();
    m_registre.listeEquipes();
    m_resultats.ouvre();
    m_photographe.prend(u"resultats-avant-depart", *m_main.fenetre(u"EResultats"_qs));
    joueTours();
    m_impressions.classement(u"classement.pdf"_qs, false);
    m_impressions.classement(u"classement-detail.pdf"_qs, true);
    m_impressions.palmares(u"palmares.pdf"_qs, u"palmares-detail.pdf"_qs);
    m_impressions.club(u"equipe-club.pdf"_qs);
    m_impressions.saison();
    m_resultats.ouvre();
    m_registre.choisitEquipe();
    m_registre.copieEtSupprime();
    m_outils.essaie();
    m_visite.langues();
    m_visite.tailles();
}

void Journee::demarre()
{
    m_main.demarre();
    prevoitBoites();
    m_photographe.prendBureau(u"accueil", *m_main.fenetre(u"Torvik"_qs), {u"Accueil"_qs});
}

void Journee::prevoitBoites()
{
    const TableMessages &mes = m_programme.partage().mes;
    m_boites.prevoit(Boite::NumeroConcours, mes(95), ReponseBoite::OK, u"boite-numero-concours");
    m_boites.prevoit(Boite::ClubNouveau, mes(92), ReponseBoite::Oui, u"boite-club-nouveau");
    m_boites.prevoit(Boite::Panachees, u"Les équipes panachées sont-elles autorisées"_qs, ReponseBoite::Oui,
                     u"boite-panachees");
    m_boites.prevoit(Boite::RencontreLancee, u"peut être lancée"_qs, ReponseBoite::OK, u"boite-rencontre-lancee");
    m_boites.prevoit(Boite::Retardataire, mes(126), ReponseBoite::Oui, u"boite-retardataire");
    m_boites.prevoit(Boite::MemeClub, u"deux équipes d'un même club"_qs, ReponseBoite::OK, u"boite-meme-club");
    m_boites.prevoit(Boite::MeilleurTirage, u"Le mettre à la place ?"_qs, ReponseBoite::Oui, u"boite-meilleur-tirage");
    m_boites.prevoit(Boite::ListeExportee, u"La liste est dans"_qs, ReponseBoite::OK, u"boite-exportee");
    m_boites.prevoit(Boite::Copie, u"Concours dupliqué sous le numéro"_qs, ReponseBoite::OK, u"boite-copie");
    m_boites.prevoit(Boite::Suppression, mes(96), ReponseBoite::Oui, u"boite-suppression");
    m_boites.prevoit(Boite::DejaRencontrees, u"deux équipes se sont déjà rencontrées"_qs, ReponseBoite::OK,
                     u"boite-deja-rencontrees");
}

void Journee::creeConcours()
{
    m_main.clique(m_main.controle(u"Torvik"_qs, u"f_concours"_qs));
    m_main.exigeFocus(editeur, u"Text2"_qs);
    m_photographe.prend(u"concours-vierge", *m_main.fenetre(editeur));
    m_main.tape(m_horloge.jour().toString(u"dd/MM/yyyy"_qs));
    m_main.entree();
    m_main.exigeFocus(editeur, u"Text3"_qs);
    m_main.tape(u"Place des Platanes, Lorgues"_qs);
    m_main.entree();
    m_main.exigeFocus(editeur, u"Text4"_qs);
    m_main.tape(u"La Boule Ferrée"_qs);
    m_main.entree();
    m_main.exigeFocus(editeur, u"Combo1"_qs);
    // The code and the dash are enough: the label comes by itself when the field is left.
    const QString code = u"%1 - "_qs.arg(m_options.type);
    m_main.tape(code);
    m_main.entree();
    m_main.exigeFocus(editeur, u"Text2"_qs);
    const QString type = m_main.texte(editeur, u"Combo1"_qs);
    exige(type.startsWith(code) && type.size() > code.size(), u"Le type du concours est resté « %1 »."_qs.arg(type));
    m_main.clique(m_main.controle(editeur, u"text1"_qs));
    m_main.tape(u"Seniors"_qs);
    if (m_options.repeche)
        m_main.clique(m_main.controle(editeur, u"Check1"_qs));
    m_photographe.prend(u"concours-rempli", *m_main.fenetre(editeur));
    m_main.clique(m_main.controle(editeur, u"ok"_qs));
    exige(m_boites.fois(Boite::NumeroConcours) == 1, u"Le numéro du premier concours n'a pas été annoncé."_qs);
    m_photographe.prend(u"concours-enregistre", *m_main.fenetre(editeur));
}

void Journee::inscritEquipes()
{
    m_inscription.ouvre();
    m_photographe.prend(u"equipes-vierge", *m_main.fenetre(u"Eequipes"_qs));
    const int presentes = int(m_plateau.equipes().size()) - m_plateau.avecRetardataire();
    for (int numero = 1; numero <= presentes; ++numero) {
        m_inscription.inscrit(m_plateau.equipe(numero));
        if (numero % 100 == 0)
            dit(u"Inscription : %1 équipes"_qs.arg(numero));
    }
    for (int numero = 1; numero <= presentes; ++numero) {
        if (!m_plateau.equipe(numero).nomMalSaisi.isEmpty())
            m_inscription.corrige(m_plateau.equipe(numero));
    }
    m_photographe.prend(u"clubs", *m_main.fenetre(u"Listesoc"_qs));
    m_photographe.prendBureau(u"bureau-equipes", *m_main.fenetre(u"Torvik"_qs), {u"Eequipes"_qs, u"Listesoc"_qs});
    dit(u"Inscription : %1 équipes, %2 clubs"_qs.arg(presentes).arg(m_boites.fois(Boite::ClubNouveau)));
}

/// After the draw and before the first result a team still comes in: it takes the place of the bye, or gets a bye of
/// its own.
void Journee::inscritRetardataire()
{
    const EquipeDuJour &equipe = m_plateau.equipes().back();
    m_inscription.ouvre();
    m_photographe.prend(u"equipes-retardataire", *m_main.fenetre(u"Eequipes"_qs));
    m_inscription.inscrit(equipe);
    if (!equipe.nomMalSaisi.isEmpty())
        m_inscription.corrige(equipe);
    const bool avecExempt = equipe.numero % 2 == 0;
    exige(m_boites.fois(avecExempt ? Boite::RencontreLancee : Boite::Retardataire) == 1,
          u"L'arrivée de la dernière équipe n'a pas été annoncée."_qs);
    dit(u"Équipe %1 inscrite après le tirage : %2"_qs.arg(equipe.numero)
            .arg(avecExempt ? u"elle joue contre l'exempt"_qs : u"elle est exempte"_qs));
    m_resultats.ouvre();
}

void Journee::joueTours()
{
    QElapsedTimer chronometre;
    while (!m_resultats.termine()) {
        exige(m_resultats.offreUnTour(), u"Le tirage du tour %1 n'est pas proposé."_qs.arg(m_resultats.tour() + 1));
        chronometre.start();
        tireTour();
        if (m_resultats.tour() == 1 && m_plateau.avecRetardataire())
            inscritRetardataire();
        if (m_resultats.tour() == 1)
            m_impressions.tirage(u"tirage-tour1.pdf"_qs);
        if (m_resultats.tour() == 2) {
            m_impressions.rapport();
            m_resultats.ouvre();
            m_affichage.ouvre(2);
            m_resultats.ouvre();
            m_resultats.ouvreVues();
        }
        const int rencontres = m_resultats.saisitTour();
        if (m_resultats.tour() == 2)
            m_affichage.ferme();
        dit(u"Tour %1 : %2 résultats saisis en %3 s"_qs.arg(m_resultats.tour())
                .arg(rencontres)
                .arg(double(chronometre.elapsed()) / 1000, 0, 'f', 1));
    }
}

void Journee::tireTour()
{
    const int repetitions = m_boites.fois(Boite::DejaRencontrees);
    m_resultats.tire(m_resultats.tour() == 1);
    if (m_boites.fois(Boite::DejaRencontrees) > repetitions)
        m_avertis.insert(m_resultats.tour());
    m_photographe.prend(u"resultats-tour-1", *m_main.fenetre(u"EResultats"_qs));
}

} // namespace demonstration
