#include "journee.h"

#include "commun/concours_en_base.h"
#include "donnees/inscription.h"
#include "engine/routines_resultats.h"
#include "engine/routines_tirage.h"
#include "garde/reprise.h"
#include "garde/sauvegarde.h"
#include "papier/imprimante.h"
#include "partage/base.h"
#include "partage/concours_courant.h"

#include <QDir>
#include <QFile>

using donnees::EtatTirage;
using donnees::Retardataire;
using store::Erreur;

namespace {

void exige(bool fait)
{
    if (!fait)
        throw Erreur(Erreur::DisquePlein, u"L'opération n'est pas faite."_qs);
}

} // namespace

std::unique_ptr<Destination> ToujoursOui::ShowPrinter()
{
    return nullptr;
}

Journee::Journee(const QString &dossier, quint32 graine)
    : m_dossier(dossier)
    , m_graine(graine)
    , m_partage(dossier, m_alea, m_horloge)
{
    m_partage.EspaceTravail = &m_partage.moteurBase.Workspaces(0);
    compose(graine);
}

void Journee::compose(quint32 graine)
{
    const int equipes = 4 + int(graine % 5);
    inscriptions(equipes);
    ajoute([this] {
        exige(donnees::CorrigeEquipe(m_partage.BaseDonnees,
                                     {m_partage.ConcoursCourant, 2, u"Corrigé"_qs, {{u"N"_qs, u"P"_qs, u"L"_qs}}}));
    });
    ajoute([this] { exige(donnees::RetireEquipe(m_partage.BaseDonnees, m_partage.ConcoursCourant, 1)); });
    ajoute([this] { std::ignore = LanceTourSuivant(m_partage); });
    ajoute([this] { std::ignore = SauveBase(m_partage, RaisonCopie::Demande); });
    ajoute([this] {
        exige(!SauveBase(m_partage, RaisonCopie::Tirage).echouee());
        RefaitTirage(m_partage);
    });
    ajoute([this, equipes] { inscrit(equipes + 1); });
    for (int i = 0; i < (equipes + 1) / 2; ++i)
        ajoute([this, i] { saisit(i); });
    for (int tour = 2; tour <= 3; ++tour) {
        ajoute([this] { std::ignore = LanceTourSuivant(m_partage); });
        for (int i = 0; i < (equipes + 1) / 2; ++i)
            ajoute([this, i] { saisit(i); });
        ajoute([this] { m_partage.BaseDonnees.native().consolide(); });
        reprendUneCopie();
    }
    for (int fois = 0; fois < 2; ++fois) {
        m_remplacements.push_back(operations());
        ajoute([this] { PurgeBase({m_partage, m_formulaires, m_operateur}, FichiersBase(), {}); });
        inscriptions(2);
    }
}

void Journee::inscriptions(int equipes)
{
    ajoute([this] { creeConcours(); });
    for (int numero = 1; numero <= equipes; ++numero)
        ajoute([this, numero] { inscrit(numero); });
}

bool Journee::remplaceLaBase(int operation) const
{
    return std::find(m_remplacements.begin(), m_remplacements.end(), operation) != m_remplacements.end();
}

/// A copy and an entry that it lacks, as one: who starts anew goes by the content alone. Then the copy back in the
/// base's place.
void Journee::reprendUneCopie()
{
    ajoute([this] {
        exige(!SauveBase(m_partage, RaisonCopie::Demande).echouee());
        creeConcours();
    });
    m_remplacements.push_back(operations());
    ajoute([this] {
        ferme();
        std::ignore = RemetCopie(m_partage, CopiesSaines(m_dossier).front().copie.fichier);
        ouvre();
    });
}

void Journee::ouvre()
{
    const QDir dossier(m_dossier);
    exige(dossier.exists(nomBase) || ReprendPurge(m_dossier));
    m_partage.BaseDonnees =
        m_partage.EspaceTravail->OpenDatabase(dossier.filePath(nomBase), false, false, connexionBase);
}

QString Journee::integrite()
{
    return m_partage.BaseDonnees.native().valeurUnique(u"pragma integrity_check"_qs).texte();
}

void Journee::fait(int operation)
{
    m_alea = AleaFixe(m_graine * 1000 + quint32(operation));
    m_partage.ConcoursCourant = 0;
    ChargeConcours(m_partage, m_partage.ConcoursCourant);
    m_operations[std::size_t(operation)]();
}

void Journee::creeConcours()
{
    poseConcours(m_partage.BaseDonnees, {.type = u"3 - Tête à tête"_qs});
}

void Journee::inscrit(qint64 numero)
{
    const EtatTirage etat = donnees::EtatDuTirage(m_partage.BaseDonnees, m_partage.ConcoursCourant);
    const Retardataire entree = etat == EtatTirage::PasTire ? Retardataire::Aucun
        : etat == EtatTirage::Exemption                     ? Retardataire::PrendExemption
                                                            : Retardataire::NouvelleExemption;
    const QString nom = QString::number(numero);
    donnees::AjouteEquipe(m_partage.BaseDonnees,
                          {m_partage.ConcoursCourant, numero, u"Club "_qs + nom, {{nom, nom, nom}}}, entree);
}

/// Stores the result of the match at \p place of the current round, as the results screen does.
void Journee::saisit(int place)
{
    store::Recordset rencontres = m_partage.BaseDonnees.OpenRecordset(
        u"select * from scores where concours=%1 and tour=%2 order by equipe_1"_qs.arg(m_partage.ConcoursCourant)
            .arg(m_partage.TourCourant));
    for (int i = 0; i < place && !rencontres.Eof(); ++i)
        rencontres.MoveNext();
    if (rencontres.Eof())
        return;
    exige(EnregistreScore(m_partage,
                          {QString::number(m_partage.ConcoursCourant), rencontres[u"equipe_1"].texte(),
                           rencontres[u"equipe_2"].texte(), QString::number(place % 2 == 0 ? 13 : 5),
                           QString::number(place % 2 == 0 ? 7 : 13)}));
}
