#include "impressions.h"

#include "grille/flexgrid.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTabBar>
#include <QTableView>

namespace demonstration {

namespace {

const QString dialogue = u"I_tirage"_qs;
const QString liste = u"palmares"_qs;
const QString feuilles = u"Resusoc"_qs;
const QString rapportTirage = u"RapportTirage"_qs;
const QString sommes = u"Saison"_qs;
const QString fichierSommes = u"saison-clubs.csv"_qs;

} // namespace

QStringList Impressions::fichiers()
{
    return {u"rapport.pdf"_qs,
            u"fiches.pdf"_qs,
            u"tirage-tour1.pdf"_qs,
            u"classement.pdf"_qs,
            u"classement-detail.pdf"_qs,
            u"palmares.pdf"_qs,
            u"palmares-detail.pdf"_qs,
            u"equipe-club.pdf"_qs,
            u"saison.pdf"_qs,
            fichierSommes};
}

void Impressions::ouvre(const QString &option)
{
    m_main.clique(m_main.controle(u"EResultats"_qs, u"imprimer"_qs));
    m_main.clique(m_main.controle(dialogue, option));
}

void Impressions::imprime(const QString &fichier)
{
    imprime(dialogue, u"Imprime"_qs, fichier);
    m_main.clique(m_main.controle(dialogue, u"sortie"_qs));
}

void Impressions::imprime(const QString &forme, const QString &bouton, const QString &fichier)
{
    const QString chemin = QDir(m_dossier).filePath(fichier);
    m_boites.imprimeDans(chemin);
    m_main.clique(m_main.controle(forme, bouton));
    exige(QFileInfo(chemin).size() > 0, u"La feuille %1 n'est pas sortie."_qs.arg(fichier));
}

void Impressions::tirage(const QString &fichier)
{
    ouvre(u"Option1"_qs);
    m_photographe.prend(u"impression-tirage", *m_main.fenetre(dialogue));
    imprime(fichier);
}

/// The round just drawn, looked at, drawn until the best, and put on paper.
void Impressions::rapport()
{
    m_main.touche(Qt::Key_F7);
    m_main.exigeFocus(rapportTirage, u"Paires"_qs);
    m_main.clique(m_main.controle(rapportTirage, u"Meilleur"_qs));
    exige(m_boites.fois(Boite::MeilleurTirage) == 1, u"Le meilleur tirage n'a pas été proposé."_qs);
    m_photographe.prend(u"rapport-tirage", *m_main.fenetre(rapportTirage));
    imprime(rapportTirage, u"Imprimer"_qs, u"rapport.pdf"_qs);
    imprime(rapportTirage, u"Fiches"_qs, u"fiches.pdf"_qs);
    m_main.clique(m_main.controle(rapportTirage, u"Fermer"_qs));
}

void Impressions::classement(const QString &fichier, bool detail)
{
    ouvre(u"Option3"_qs);
    if (detail)
        m_main.clique(m_main.controle(dialogue, u"Label2"_qs));
    m_photographe.prend(u"impression-classement", *m_main.fenetre(dialogue));
    imprime(fichier);
}

void Impressions::ferme(const QString &forme)
{
    m_main.fenetre(forme)->close();
    QCoreApplication::processEvents();
}

/// Selects all rows, the last one with the shift key.
void Impressions::imprimePalmares(const QString &fichier)
{
    auto *grille = m_main.controle<FlexGrid>(liste, u"Thonneur_1"_qs);
    m_main.cliqueCellule(grille, 1, 1);
    m_main.cliqueCellule(grille, grille->Rows() - 1, 1, Qt::LeftButton, Qt::ShiftModifier);
    imprime(liste, u"imprimer"_qs, fichier);
}

void Impressions::palmares(const QString &simple, const QString &detaille)
{
    m_main.clique(m_main.controle(u"EResultats"_qs, u"hit"_qs));
    m_photographe.prend(u"palmares", *m_main.fenetre(liste));
    m_main.cliqueCellule(m_main.controle<FlexGrid>(liste, u"Thonneur_1"_qs), 1, 1, Qt::RightButton);
    m_photographe.prend(u"palmares-noms", *m_main.fenetre(liste));
    imprimePalmares(simple);
    m_main.clique(m_main.controle(liste, u"detail"_qs));
    m_main.clique(m_main.controle(liste, u"typedit"_qs));
    imprimePalmares(detaille);
    ferme(liste);
}

void Impressions::club(const QString &fichier)
{
    m_main.clique(m_main.controle(u"EResultats"_qs, u"hit"_qs));
    auto *grille = m_main.controle<FlexGrid>(liste, u"Thonneur_1"_qs);
    m_main.cliqueCellule(grille, 1, 1, Qt::RightButton);
    int ligne = 1;
    while (!grille->TextMatrix(ligne, 1).contains(u" bat "))
        ++ligne;
    m_main.cliqueCellule(grille, ligne, 1, Qt::LeftButton, Qt::ControlModifier);
    for (const QString &option : {u"Option3"_qs, u"Option4"_qs}) {
        if (m_main.controle(feuilles, option)->isEnabled()) {
            m_main.clique(m_main.controle(feuilles, option));
            break;
        }
    }
    m_photographe.prend(u"feuille-equipe", *m_main.fenetre(feuilles));
    imprime(feuilles, u"imprimer"_qs, fichier);
    ferme(feuilles);
    ferme(liste);
}

void Impressions::saison()
{
    m_main.menu(u"mnu_Saison"_qs)->trigger();
    m_main.exigeFocus(sommes, u"Lignes"_qs);
    auto *lignes = m_main.controle<QTableView>(sommes, u"Lignes"_qs);
    exige(lignes->model()->rowCount() > 0, u"La saison ne montre aucun club."_qs);
    m_photographe.prend(u"saison-clubs", *m_main.fenetre(sommes));
    imprime(sommes, u"Imprimer"_qs, u"saison.pdf"_qs);
    const QString chemin = QDir(m_dossier).filePath(fichierSommes);
    m_boites.choisit(chemin);
    m_main.clique(m_main.controle(sommes, u"Exporter"_qs));
    exige(m_boites.fois(Boite::ListeExportee) == 1 && QFileInfo(chemin).size() > 0,
          u"La liste des clubs n'est pas sortie."_qs);
    m_main.controle<QTabBar>(sommes, u"Vue"_qs)->setCurrentIndex(1);
    exige(lignes->model()->rowCount() > 0, u"La saison ne montre aucune licence."_qs);
    m_photographe.prend(u"saison-licences", *m_main.fenetre(sommes));
    m_main.clique(m_main.controle(sommes, u"Fermer"_qs));
}

} // namespace demonstration
