#include "results/detail_resultats.h"

#include "donnees/clubs.h"
#include "donnees/equipes.h"
#include "engine/partie.h"
#include "fenetres/formulaires.h"
#include "partage/routines.h"
#include "socle/twips.h"
#include "ui_detail_resultats.h"

DetailResultats::DetailResultats(const Contexte &contexte, QWidget *parent)
    : VueResultats(contexte, parent)
    , m_ui(std::make_unique<Ui::DetailResultats>())
{
    m_ui->setupUi(this);
    prepareControles();
    setFixedSize(size());
}

DetailResultats::~DetailResultats() = default;

/// Over the groups: the pending matches, the entry and the bar of the main window stay in sight.
void DetailResultats::placePres(const Formulaire &saisie)
{
    const QRect zone = formulaires().zoneLibre();
    Move(gaucheLibre(saisie, saisie.Left() - Width()), enTwips(zone.top()));
    setFixedHeight(zone.height() - formulaires().tailleCadre(*this).height());
    m_ui->scores->resize(m_ui->scores->width(), height() - m_ui->scores->y() - m_ui->scores->x());
}

void DetailResultats::affiche(qint64 equipe)
{
    const QString numero = QString::number(equipe);
    setWindowTitle(u"Résultats détaillés de l'équipe N° "_qs + numero);
    afficheComposition(equipe);
    QStringList lignes;
    for (const donnees::Rencontre &rencontre :
         donnees::RencontresDeLEquipe(partage().BaseDonnees, partage().ConcoursCourant, equipe))
        lignes += ligneRencontre(rencontre, equipe);
    m_ui->scores->setPlainText(lignes.join(u'\n'));
    placeForme();
}

void DetailResultats::afficheComposition(qint64 equipe)
{
    store::Database &base = partage().BaseDonnees;
    QStringList composition;
    QStringList clubs;
    for (const donnees::Membre &membre : donnees::MembresDeLEquipe(base, partage().ConcoursCourant, equipe)) {
        composition += u"- "_qs + membre.prenom + u' ' + membre.nom + u"  ("_qs + membre.licence + u')';
        if (!donnees::EstPanache(membre.club))
            clubs = QStringList(membre.club);
        else if (const auto joueur = donnees::JoueurConnu(base, membre.licence))
            clubs += joueur->club;
    }
    m_ui->Equipe->setPlainText(composition.join(u'\n'));
    m_ui->Club->setPlainText(clubs.join(u'\n'));
}

QString DetailResultats::ligneRencontre(const donnees::Rencontre &rencontre, qint64 equipe)
{
    const bool premiere = rencontre.equipe1 == equipe;
    const bool repechee = partage().AvecRepechage && rencontre.repechage == (premiere ? 1 : 2);
    const QString adversaire =
        rencontre.exempt() ? u"Exempt"_qs : texteAdversaire(premiere ? rencontre.equipe2 : rencontre.equipe1);
    return u"Tour n° "_qs + QString::number(rencontre.tour) + u" - "_qs + texteResultat(rencontre, premiere)
        + adversaire + u' ' + (repechee ? u" Repêchée"_qs : QString());
}

/// The pair stands in the stored order only where the second team has lost to the first, or the first to the second;
/// with both at 13 the first has won.
QString DetailResultats::texteResultat(const donnees::Rencontre &rencontre, bool premiere) const
{
    if (rencontre.exempt())
        return u"Gagne 13:7 "_qs;
    if (rencontre.enAttente())
        return u"Résultat en attente contre "_qs;
    const auto vaut13 = [](const store::Valeur &score) { return score == store::Valeur(moteur::scoreGagnant); };
    const QString un = TexteScore(partage(), rencontre.score1);
    const QString deux = TexteScore(partage(), rencontre.score2);
    const QString direct = un + u':' + deux + u" contre "_qs;
    const QString inverse = deux + u':' + un + u" contre "_qs;
    if (vaut13(rencontre.score1))
        return premiere ? u"Gagne "_qs + inverse : u"Perd "_qs + inverse;
    if (vaut13(rencontre.score2))
        return premiere ? u"Perd "_qs + direct : u"Gagne "_qs + inverse;
    return {};
}

QString DetailResultats::texteAdversaire(qint64 adversaire)
{
    QString texte = QString::number(adversaire);
    for (const donnees::Membre &membre :
         donnees::MembresDeLEquipe(partage().BaseDonnees, partage().ConcoursCourant, adversaire))
        texte += u' ' + membre.nom + u'(' + membre.club + u')';
    return texte;
}
