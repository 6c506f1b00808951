#include "results/detail_resultats.h"

#include "app/routines.h"
#include "engine/clubs.h"
#include "engine/rencontre.h"
#include "platform/formulaires.h"
#include "store/collation.h"
#include "results/groupes.h"
#include "ui_detail_resultats.h"

using store::Recordset;

DetailResultats::DetailResultats(const Contexte &contexte, QWidget *parent)
    : VueResultats(contexte, parent)
    , m_ui(std::make_unique<Ui::DetailResultats>())
{
    m_ui->setupUi(this);
    prepareControles();
    setFixedSize(size());
}

DetailResultats::~DetailResultats() = default;

/// Over the groups, from the bottom of the screen up: the pending matches and the entry stay in sight.
void DetailResultats::placePres(const Formulaire &saisie)
{
    Move(std::max(saisie.Left() - Width(), 0), Groupes::haut);
}

void DetailResultats::affiche(qint64 equipe)
{
    const QString numero = QString::number(equipe);
    setWindowTitle(u"Résultats détaillés de l'équipe N° "_qs + numero);
    afficheComposition(equipe);
    Recordset rencontres = partage().BaseDonnees.OpenRecordset(
        u"select * from scores where concours=%1 and (equipe_1 = %2 or equipe_2 = %2) order by tour"_qs
            .arg(partage().ConcoursCourant)
            .arg(numero));
    QStringList lignes;
    for (; !rencontres.Eof(); rencontres.MoveNext())
        lignes += ligneRencontre(rencontres, equipe);
    m_ui->scores->setPlainText(lignes.join(u'\n'));
    placeForme();
}

void DetailResultats::afficheComposition(qint64 equipe)
{
    Recordset membres = partage().BaseDonnees.OpenRecordset(u"select * from equipes where concours=%1 and equipe=%2"_qs
                                                                .arg(partage().ConcoursCourant)
                                                                .arg(equipe));
    Recordset joueurs = partage().BaseDonnees.OpenRecordset(u"equipes", store::dbOpenTable);
    joueurs.Index(u"engage");
    QStringList composition;
    QStringList clubs;
    for (; !membres.Eof(); membres.MoveNext()) {
        const QString licence = membres[u"licence"].texte();
        const QString club = membres[u"societe"].texte();
        composition += u"- "_qs + membres[u"prenom"].texte() + u' ' + membres[u"nom"].texte() + u"  ("_qs + licence
            + u')';
        if (store::CompareFrancais(club, moteur::clubPanache) != 0) {
            clubs = QStringList(club);
            continue;
        }
        joueurs.Seek(u"=", {licence, 0});
        if (!joueurs.NoMatch())
            clubs += joueurs[u"societe"].texte();
    }
    m_ui->Equipe->setPlainText(composition.join(u'\n'));
    m_ui->Club->setPlainText(clubs.join(u'\n'));
}

QString DetailResultats::ligneRencontre(const Recordset &rencontre, qint64 equipe)
{
    const qint64 equipe1 = rencontre[u"equipe_1"].entier();
    const qint64 equipe2 = rencontre[u"equipe_2"].entierOu(0);
    const bool premiere = equipe1 == equipe;
    const bool repechee =
        partage().AvecRepechage && rencontre[u"repechage"].entierOu(0) == (premiere ? 1 : 2);
    const QString adversaire = equipe2 == 0 ? u"Exempt"_qs : texteAdversaire(premiere ? equipe2 : equipe1);
    return u"Tour n° "_qs + rencontre[u"tour"].texte() + u" - "_qs + texteResultat(rencontre, premiere) + adversaire
        + u' ' + (repechee ? u" Repêchée"_qs : QString());
}

/// The pair stands in the stored order only where the second team has lost to the first, or the first to the second;
/// with both at 13 the first has won.
QString DetailResultats::texteResultat(const Recordset &rencontre, bool premiere) const
{
    if (rencontre[u"equipe_2"].entierOu(0) == 0)
        return u"Gagne 13:7 "_qs;
    const store::Valeur score1 = rencontre[u"score_1"];
    const store::Valeur score2 = rencontre[u"score_2"];
    if (score1.estNull() && score2.estNull())
        return u"Résultat en attente contre "_qs;
    const auto vaut13 = [](const store::Valeur &score) { return score == store::Valeur(moteur::scoreGagnant); };
    const QString un = TexteScore(partage(), score1);
    const QString deux = TexteScore(partage(), score2);
    const QString direct = un + u':' + deux + u" contre "_qs;
    const QString inverse = deux + u':' + un + u" contre "_qs;
    if (vaut13(score1))
        return premiere ? u"Gagne "_qs + inverse : u"Perd "_qs + inverse;
    if (vaut13(score2))
        return premiere ? u"Perd "_qs + direct : u"Gagne "_qs + inverse;
    return {};
}

QString DetailResultats::texteAdversaire(qint64 adversaire)
{
    Recordset membres = partage().BaseDonnees.OpenRecordset(
        u"select * from equipes where concours=%1 and equipe=%2 order by doublon"_qs.arg(partage().ConcoursCourant)
            .arg(adversaire));
    QString texte = QString::number(adversaire);
    for (; !membres.Eof(); membres.MoveNext())
        texte += u' ' + membres[u"nom"].texte() + u'(' + membres[u"societe"].texte() + u')';
    return texte;
}
