#include "cloture.h"

#include "partage/base.h"
#include "partage/routines.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QTableWidget>
#include <QTest>

namespace demonstration {

namespace {

const QString copieDuJour = u"VarloBase-journee.mdb"_qs;
const QString copieAilleurs = u"VarloBase-cle.mdb"_qs;
const QString fichierEquipes = u"equipes.dat"_qs;
const QString fichierJoueurs = u"joueurs.txt"_qs;
const QString fichierClubs = u"clubs.txt"_qs;
/// More would show nothing that these do not.
constexpr std::size_t equipesImportees = 24;

QString ligneEquipe(const EquipeDuJour &equipe)
{
    QStringList champs{equipe.club};
    for (const Joueur &joueur : equipe.joueurs)
        champs += {joueur.nom, joueur.prenom, joueur.licence};
    // The bar at the end may be there or not.
    return champs.join(u'|') + (equipe.numero % 2 == 0 ? u"|"_qs : QString());
}

void ecrit(const QString &chemin, const QStringList &lignes)
{
    QFile fichier(chemin);
    const QByteArray octets = lignes.join(u"\r\n").toUtf8() + "\r\n";
    exige(fichier.open(QIODevice::WriteOnly) && fichier.write(octets) == octets.size(),
          u"Le fichier %1 ne peut pas être écrit."_qs.arg(QDir::toNativeSeparators(chemin)));
}

} // namespace

Cloture::Cloture(const Options &options, const Plateau &plateau)
    : m_options(options)
    , m_plateau(plateau)
    , m_equipes(std::span(plateau.equipes()).first(std::min(plateau.equipes().size(), equipesImportees)))
    , m_photographe(options.dossier)
    , m_boites(m_photographe)
    , m_alea(options.graine)
    , m_programme(options.dossier, m_alea, m_horloge, m_boites)
    , m_main(m_programme, m_boites)
    , m_inscription(m_programme, m_main, m_boites, m_photographe)
{
}

QStringList Cloture::fichiers()
{
    return {copieDuJour, copieAilleurs, fichierEquipes, fichierJoueurs, fichierClubs};
}

QString Cloture::chemin(const QString &nom) const
{
    return QDir(m_options.dossier).filePath(nom);
}

qint64 Cloture::nombre(const QString &lignes)
{
    return ValeurUnique(m_programme.partage(), u"select count(*) from "_qs + lignes).entier();
}

void Cloture::joue()
{
    exige(QFile::copy(chemin(nomBase), chemin(copieDuJour)), u"La base du jour n'a pas pu être copiée."_qs);
    ecritFichiers();
    m_main.demarre();
    prevoitBoites();
    importeEquipes();
    importeListes();
    restaure();
    purge();
    m_programme.termine();
}

void Cloture::ecritFichiers() const
{
    QStringList equipes;
    for (const EquipeDuJour &equipe : m_equipes)
        equipes += ligneEquipe(equipe);
    ecrit(chemin(fichierEquipes), equipes);
    QStringList joueurs{u"N° licence;Nom;Prénom;Nom du club"_qs};
    for (const EquipeDuJour &equipe : m_plateau.equipes()) {
        for (const Joueur &joueur : equipe.joueurs)
            joueurs += QStringList{joueur.licence, joueur.nom, joueur.prenom, u'"' + joueur.club + u'"'}.join(u';');
    }
    ecrit(chemin(fichierJoueurs), joueurs);
    QStringList clubs{u"Code club;Nom du club"_qs};
    for (const QString &club : m_plateau.clubs())
        clubs += u"%1;%2"_qs.arg(clubs.size()).arg(club);
    ecrit(chemin(fichierClubs), clubs);
}

void Cloture::prevoitBoites()
{
    const TableMessages &mes = m_programme.partage().mes;
    m_boites.prevoit(Boite::Importation, mes(100), ReponseBoite::Oui, u"boite-importation");
    m_boites.prevoit(Boite::EquipeImportee, mes(101), ReponseBoite::Oui, u"boite-equipe-importee");
    m_boites.prevoit(Boite::Panachees, u"Les équipes panachées sont-elles autorisées"_qs, ReponseBoite::Oui,
                     u"boite-panachees");
    m_boites.prevoit(Boite::CopieFaite, u"Copie faite : VarloBase-"_qs, ReponseBoite::OK, u"boite-copie-securite");
    m_boites.prevoit(Boite::CopieAilleurs, u"est écrite, relue et complète"_qs, ReponseBoite::OK,
                     u"boite-copie-ailleurs");
    m_boites.prevoit(Boite::Restauration, u"Restaurer la copie du"_qs, ReponseBoite::Oui, u"boite-restauration");
    m_boites.prevoit(Boite::Restauree, u"est en place"_qs, ReponseBoite::OK, u"boite-restauree");
    m_boites.prevoit(Boite::Purge, u"Attention cette opération est irréversible"_qs, ReponseBoite::Oui, u"boite-purge");
    m_boites.prevoit(Boite::PurgeReussie, u"Opération réussie"_qs, ReponseBoite::OK, u"boite-purge-reussie");
}

/// The teams of the day come back for a competition of the same type.
void Cloture::importeEquipes()
{
    m_programme.partage().BaseDonnees.Execute(
        u"insert into concours ([date], lieu, type, categorie, pro) select [date], lieu, type, categorie, pro from "
        u"concours");
    m_inscription.ouvre();
    m_boites.choisit(chemin(fichierEquipes));
    m_main.clique(m_main.controle(u"Eequipes"_qs, u"cImport"_qs));
    exige(m_boites.fois(Boite::Importation) == 1 && m_boites.fois(Boite::EquipeImportee) == int(m_equipes.size()),
          u"Le fichier des équipes n'a pas été lu jusqu'au bout."_qs);
    for (const EquipeDuJour &equipe : m_equipes)
        m_inscription.verifieBase(equipe, equipe.joueurs.front().nom);
    m_photographe.prend(u"equipes-importees", *m_main.fenetre(u"Eequipes"_qs));
    dit(u"Importation : %1 équipes du fichier %2"_qs.arg(m_equipes.size()).arg(fichierEquipes));
}

void Cloture::importeListes()
{
    choisit(u"mnu_ijoueur"_qs);
    choisit(u"mnu_iclub"_qs);
    const qint64 joueurs = nombre(u"joueurs where licence is not null and nom is not null and societe is not null"_qs);
    exige(joueurs == qint64(m_plateau.equipes().size()) * m_options.joueurs(),
          u"La liste des joueurs n'est pas entrée."_qs);
    exige(nombre(u"clubs"_qs) == qint64(m_plateau.clubs().size()), u"La liste des clubs n'est pas entrée."_qs);
    dit(u"Importation : %1 joueurs, %2 clubs"_qs.arg(joueurs).arg(m_plateau.clubs().size()));
}

/// The lists have come in over the base of the start: back to it, and forward again.
void Cloture::restaure()
{
    const QString copies = u"CopiesSecurite"_qs;
    const qint64 joueurs = nombre(u"joueurs"_qs);
    choisit(u"mnu_CopiesSecurite"_qs);
    auto *liste = m_main.controle<QTableWidget>(copies, u"Copies"_qs);
    m_main.clique(m_main.controle(copies, u"Copier_maintenant"_qs));
    m_boites.choisit(chemin(copieAilleurs));
    m_main.clique(m_main.controle(copies, u"Copier_vers"_qs));
    auto *restaurer = m_main.controle(copies, u"Restaurer"_qs);
    for (const int ligne : {liste->rowCount() - 1, 0}) {
        liste->selectRow(ligne);
        exige(QTest::qWaitFor([restaurer] { return restaurer->isEnabled(); }), u"La copie ne se lit pas."_qs);
        m_photographe.prend(u"copies", *m_main.fenetre(copies));
        m_main.clique(restaurer);
        const qint64 voulus = ligne == 0 ? joueurs : 0;
        exige(nombre(u"joueurs"_qs) == voulus, u"La base restaurée n'est pas celle de la copie."_qs);
    }
    exige(m_boites.fois(Boite::CopieFaite) == 1 && m_boites.fois(Boite::CopieAilleurs) == 1
              && m_boites.fois(Boite::Restauree) == 2,
          u"Les copies de sécurité n'ont pas fait ce qui leur était demandé."_qs);
    dit(u"Copies : %1, base restaurée puis reprise"_qs.arg(liste->rowCount()));
    m_main.touche(Qt::Key_Escape);
}

void Cloture::purge()
{
    const qint64 preenregistres = nombre(u"equipes where concours = 0"_qs);
    const qint64 clubs = nombre(u"societes"_qs);
    choisit(u"mnu_base"_qs);
    exige(m_boites.fois(Boite::PurgeReussie) == 1, u"La remise à zéro n'a pas abouti."_qs);
    exige(nombre(u"equipes"_qs) == preenregistres && nombre(u"equipes where concours = 0"_qs) == preenregistres
              && nombre(u"societes"_qs) == clubs,
          u"La remise à zéro n'a pas gardé les joueurs et les clubs."_qs);
    for (const QString &table : {u"concours"_qs, u"scores"_qs, u"evolution"_qs})
        exige(nombre(table) == 0, u"La remise à zéro a laissé des lignes dans %1."_qs.arg(table));
    dit(u"Remise à zéro : %1 joueurs pré-enregistrés gardés ; la base du jour est dans %2"_qs.arg(preenregistres)
            .arg(copieDuJour));
}

void Cloture::choisit(const QString &entree)
{
    m_main.menu(entree)->trigger();
    exige(m_boites.faute().isEmpty(), m_boites.faute());
}

} // namespace demonstration
