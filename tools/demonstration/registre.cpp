#include "registre.h"

#include "grille/flexgrid.h"
#include "partage/routines.h"
#include "registration/fichier_equipes.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTest>

namespace demonstration {

namespace {

const QString fiche = u"Ejoueurs"_qs;
const QString inscription = u"Eequipes"_qs;
const QString resultats = u"EResultats"_qs;
const QString editeur = u"Econcours"_qs;
const QString joueurs = u"listjo"_qs;
const QString equipes = u"listeq"_qs;
const QString grilleListe = u"Les_équipes"_qs;

int ligneDe(const FlexGrid &grille, int colonne, const QString &texte)
{
    for (int ligne = 1; ligne < grille.Rows(); ++ligne) {
        if (grille.TextMatrix(ligne, colonne) == texte)
            return ligne;
    }
    throw Incident(u"La liste ne contient pas « %1 »."_qs.arg(texte));
}

} // namespace

Registre::Registre(Programme &programme, Operateur &main, BoitesDuJour &boites, Photographe &photographe,
                   Impressions &impressions, const Plateau &plateau)
    : m_programme(programme)
    , m_main(main)
    , m_boites(boites)
    , m_photographe(photographe)
    , m_impressions(impressions)
{
    m_joueurs = {{u"D-00001"_qs, u"O'Brien"_qs, u"Maëlle"_qs, plateau.clubs().front()},
                 {u"D-00002"_qs, u"Désiré-Lenoir"_qs, u"Jean"_qs, u"L'Étoile d'Aÿ"_qs}};
}

QStringList Registre::fichiers()
{
    return {u"joueurs.pdf"_qs, u"equipes.pdf"_qs, FichierEquipes::nom};
}

qint64 Registre::nombre(const QString &lignes)
{
    return ValeurUnique(m_programme.partage(), u"select count(*) from "_qs + lignes).entier();
}

void Registre::declenche(const QString &action)
{
    m_main.menu(action)->trigger();
    QCoreApplication::processEvents();
}

void Registre::saisitJoueur(const Joueur &joueur)
{
    m_main.clique(m_main.controle(fiche, u"Société"_qs));
    m_main.tape(joueur.club);
    m_main.entree();
    // The question about a new club lets the keyboard go on at the names.
    m_main.clique(m_main.controle(fiche, u"LicenceJ_0"_qs));
    for (const QString &saisie : {joueur.licence, joueur.nom, joueur.prenom, u"14/07/1968"_qs}) {
        m_main.tape(saisie);
        m_main.entree();
    }
    m_main.exigeFocus(fiche, u"Masculin"_qs);
    m_main.clique(m_main.controle(fiche, u"Feminin"_qs));
    m_photographe.prend(u"joueurs", *m_main.fenetre(fiche));
    m_main.clique(m_main.controle(fiche, u"Okc"_qs));
    exige(nombre(u"equipes where concours = 0 and licence = '%1'"_qs.arg(joueur.licence)) == 1,
          u"La licence %1 n'est pas dans le fichier des joueurs."_qs.arg(joueur.licence));
}

void Registre::preenregistre()
{
    declenche(u"mnu_joueurs"_qs);
    exige(QTest::qWaitForWindowActive(m_main.fenetre(fiche)), u"Le fichier des joueurs ne vient pas devant."_qs);
    for (const Joueur &joueur : m_joueurs)
        saisitJoueur(joueur);

    m_main.clique(m_main.controle(fiche, u"Command1"_qs));
    auto *liste = m_main.controle<FlexGrid>(joueurs, grilleListe);
    m_photographe.prend(u"liste-joueurs", *m_main.fenetre(joueurs));
    m_impressions.imprime(joueurs, u"imprimer"_qs, u"joueurs.pdf"_qs);
    m_main.cliqueCellule(liste, ligneDe(*liste, 2, m_joueurs[0].licence), 2);
    exige(QTest::qWaitFor([&] { return m_main.texte(fiche, u"NomJ_0"_qs) == m_joueurs[0].nom; }),
          u"La liste n'a pas appelé %1."_qs.arg(m_joueurs[0].nom));
    m_photographe.prend(u"joueurs-appel", *m_main.fenetre(fiche));
}

void Registre::choisitJoueur()
{
    m_main.clique(m_main.controle(inscription, u"Command2"_qs));
    auto *liste = m_main.controle<FlexGrid>(joueurs, grilleListe);
    m_main.cliqueCellule(liste, ligneDe(*liste, 2, m_joueurs[1].licence), 1);
    exige(QTest::qWaitFor([&] { return m_main.texte(inscription, u"NomJ_0"_qs) == m_joueurs[1].nom; }),
          u"La liste n'a pas donné la licence de %1."_qs.arg(m_joueurs[1].nom));
    m_photographe.prend(u"equipes-joueur-choisi", *m_main.fenetre(inscription));
}

void Registre::listeEquipes()
{
    m_main.clique(m_main.controle(inscription, u"Command1"_qs));
    m_photographe.prend(u"liste-equipes", *m_main.fenetre(equipes));
    const QFile fichier(QDir(m_programme.partage().DossierProgramme).filePath(FichierEquipes::nom));
    exige(fichier.size() > 0, u"Le fichier %1 n'a pas été écrit."_qs.arg(FichierEquipes::nom));
    m_impressions.imprime(equipes, u"imprimer"_qs, u"equipes.pdf"_qs);
    m_impressions.ferme(equipes);
}

void Registre::choisitEquipe()
{
    m_main.clique(m_main.controle(resultats, u"Equipe1"_qs));
    auto *liste = m_main.controle<FlexGrid>(equipes, grilleListe);
    m_main.cliqueCellule(liste, 1, 1);
    exige(m_main.texte(resultats, u"Equipe1"_qs) == liste->TextMatrix(1, 0),
          u"La liste n'a pas donné son numéro d'équipe."_qs);
    m_photographe.prend(u"resultats-equipe-choisie", *m_main.fenetre(resultats));
    m_impressions.ferme(equipes);
    m_main.clique(m_main.controle(resultats, u"Equipe1"_qs));
    m_main.remplace(QString());
}

void Registre::copieEtSupprime()
{
    const QString original = ZeroPad(m_programme.partage().ConcoursCourant, 6);
    const QString inscrites = u"equipes where concours = "_qs;
    const qint64 joueursInscrits = nombre(inscrites + original);
    m_main.clique(m_main.controle(u"Torvik"_qs, u"f_concours"_qs));
    const auto choisit = [this](const QString &numero) {
        m_main.clique(m_main.controle(editeur, u"référence"_qs));
        m_main.remplace(numero);
        m_main.entree();
    };
    choisit(original);
    m_main.clique(m_main.controle(editeur, u"Dupliquer"_qs));
    const qint64 copie = ValeurUnique(m_programme.partage(), u"select max(concours) as maxc from concours"_qs).entier();
    exige(copie != original.toLongLong() && nombre(inscrites + QString::number(copie)) == joueursInscrits,
          u"La copie du concours n'a pas toutes ses équipes."_qs);
    m_main.clique(m_main.controle(editeur, u"Command1"_qs));
    m_photographe.prend(u"liste-concours", *m_main.fenetre(u"Listco"_qs));
    m_impressions.ferme(u"Listco"_qs);
    choisit(ZeroPad(copie, 6));
    m_main.clique(m_main.controle(editeur, u"Supprimer"_qs));
    exige(nombre(inscrites + QString::number(copie)) == 0 && nombre(inscrites + original) == joueursInscrits,
          u"La suppression de la copie a pris autre chose qu'elle."_qs);
}

} // namespace demonstration
