#include "outils/rapport_tirage.h"

#include "fenetres/copie_prealable.h"
#include "fenetres/formulaires.h"
#include "fenetres/liste_a_choisir.h"
#include "fenetres/patience.h"
#include "noms/apres_tirage.h"
#include "noms/formes.h"
#include "partage/concours_courant.h"
#include "printing/imprime_fiches.h"
#include "printing/imprime_rapport.h"
#include "ui_rapport_tirage.h"

namespace {

const QString saut = u"\r\n"_qs;
constexpr int essaisAuPlus = 50;
constexpr QColor fondSignale(0xFF, 0xE9, 0xC2);

} // namespace

void MontreRapportApresTirage(const Contexte &contexte)
{
    Partage &partage = contexte.partage;
    if (!apresTirage(contexte.formulaires).montreRapport || partage.TourCourant <= 0)
        return;
    const MatiereRapport matiere = LitMatiere(partage);
    if (moteur::etablitRapport(matiere.parties, partage.TourCourant, matiere.clubs).aSignaler())
        contexte.formulaires.Montre(formes::RapportTirage);
}

RapportTirage::RapportTirage(const Contexte &contexte, QWidget *parent)
    : FormeOutil(contexte, parent)
    , m_ui(std::make_unique<Ui::RapportTirage>())
{
    m_ui->setupUi(this);
    appreteListe(*m_ui->Paires);
    m_ui->Paires->setWordWrap(true);
    prepareControles();
    m_calcul.setSingleShot(true);
    surChoix(m_ui->Tour, [this] { Tour_Click(); });
    surClick(m_ui->Refaire, [this] { Refaire_Click(); });
    surClick(m_ui->Meilleur, [this] { Meilleur_Click(); });
    surClick(m_ui->Imprimer, [this] { Imprimer_Click(); });
    surClick(m_ui->Fiches, [this] { Fiches_Click(); });
    surClick(m_ui->Fermer, [this] { close(); });
    surClick(m_ui->Apres_tirage,
             [this] { apresTirage(formulaires()).montreRapport = m_ui->Apres_tirage->isChecked(); });
    connect(&m_calcul, &QTimer::timeout, this, [this] {
        execute([this] {
            const Sablier sablier;
            moteur::calculeMinimums(m_rapport, m_matiere.parties, m_matiere.clubs);
            montrePaires();
            montreBilan();
        });
    });
}

RapportTirage::~RapportTirage() = default;

void RapportTirage::Form_Load()
{
    m_ui->Apres_tirage->setChecked(apresTirage(formulaires()).montreRapport);
    traduit();
    m_ui->Paires->setFocus();
}

void RapportTirage::Form_Activate()
{
    Rafraichir();
}

void RapportTirage::traduit()
{
    m_ui->retranslateUi(this);
    m_ui->Paires->setHorizontalHeaderLabels(entetes());
    montrePaires();
    montreBilan();
}

QStringList RapportTirage::entetes() const
{
    return {tr("Niveau"), tr("Equipe"), tr("Club"), tr("Equipe"), tr("Club"), tr("Remarque")};
}

void RapportTirage::Rafraichir()
{
    if (partage().ConcoursCourant == 0)
        RetrouveConcours(partage());
    ReprendTour(partage());
    if (std::exchange(m_concours, partage().ConcoursCourant) != m_concours)
        m_avant.clear();
    m_matiere = LitMatiere(partage());
    m_ui->Tour->clear();
    for (int tour = 1; tour <= partage().TourCourant; ++tour)
        m_ui->Tour->addItem(QString::number(tour));
    m_ui->Tour->setCurrentIndex(m_ui->Tour->count() - 1);
    montre(partage().TourCourant);
}

int RapportTirage::tourChoisi() const
{
    return m_ui->Tour->currentText().toInt();
}

void RapportTirage::Tour_Click()
{
    montre(tourChoisi());
}

/// What the matches are comes at once; whether it was avoidable, when it has been worked out.
void RapportTirage::montre(int tour)
{
    m_rapport = moteur::etablitRapport(m_matiere.parties, tour, m_matiere.clubs);
    montrePaires();
    montreBilan();
    const bool dernier = tour > 0 && tour == partage().TourCourant && PeutRefaireTour(partage());
    m_ui->Refaire->setEnabled(dernier);
    m_ui->Meilleur->setEnabled(dernier);
    m_ui->Imprimer->setEnabled(!m_rapport.paires.empty());
    m_ui->Fiches->setEnabled(!m_rapport.paires.empty());
    m_calcul.start();
}

QString RapportTirage::remarque(const moteur::PaireRapportee &paire) const
{
    if (paire.exempt())
        return paire.encoreExempt ? tr("exempte pour la deuxième fois") : tr("exempte");
    QStringList remarques;
    const moteur::NiveauRapporte *niveau = m_rapport.niveau(paire.niveau);
    const auto evitable = [](int compte, int auMoins) { return auMoins < compte ? tr("évitable") : tr("inévitable"); };
    if (paire.dejaAuTour)
        remarques += tr("déjà rencontrées au tour %1 (%2)")
                         .arg(*paire.dejaAuTour)
                         .arg(evitable(niveau->repetitions, niveau->repetitionsAuMoins));
    if (paire.memeClub)
        remarques += tr("même club (%1)").arg(evitable(niveau->memeClub, niveau->memeClubAuMoins));
    if (paire.remontee)
        remarques += tr("%1 remontée du niveau %2").arg(*paire.remontee).arg(paire.niveauRemontee);
    return remarques.join(u", "_qs);
}

void RapportTirage::montrePaires()
{
    m_ui->Paires->setRowCount(int(m_rapport.paires.size()));
    for (std::size_t i = 0; i < m_rapport.paires.size(); ++i) {
        const moteur::PaireRapportee &paire = m_rapport.paires[i];
        const QString seconde = paire.exempt() ? QString() : QString::number(paire.equipe2);
        ecritLigne(*m_ui->Paires, int(i),
                   {QString::number(paire.niveau), QString::number(paire.equipe1),
                    m_matiere.tousLesClubs.value(paire.equipe1), seconde, m_matiere.tousLesClubs.value(paire.equipe2),
                    remarque(paire)});
        if (paire.dejaAuTour || paire.memeClub || paire.encoreExempt) {
            for (int colonne = 0; colonne < m_ui->Paires->columnCount(); ++colonne)
                m_ui->Paires->item(int(i), colonne)->setBackground(fondSignale);
            m_ui->Paires->resizeRowToContents(int(i)); // its remark may be long
        }
    }
}

QString RapportTirage::bilan(const moteur::RapportTour &rapport) const
{
    return tr("%n rencontre(s) déjà jouée(s)", nullptr, rapport.repetitions()) + u", "_qs
        + tr("%n rencontre(s) d'un même club", nullptr, rapport.memeClub());
}

/// The round in one line, what its levels could have at least, and the draw that it has replaced.
void RapportTirage::montreBilan()
{
    if (m_rapport.paires.empty()) {
        m_ui->Bilan->setText(tr("Aucun tour n'est tiré."));
        return;
    }
    QStringList lignes{tr("Tour %1 : %2.").arg(m_rapport.tour).arg(bilan(m_rapport))};
    for (const moteur::NiveauRapporte &niveau : m_rapport.niveaux) {
        if (niveau.defautsAuMoins < niveau.defauts)
            lignes += tr("Niveau %1 : une autre répartition aurait %2 défaut(s) au lieu de %3.")
                          .arg(niveau.niveau)
                          .arg(niveau.defautsAuMoins)
                          .arg(niveau.defauts);
    }
    if (!m_avant.isEmpty() && m_rapport.tour == partage().TourCourant)
        lignes += tr("Le tirage d'avant : %1.").arg(m_avant);
    m_ui->Bilan->setText(lignes.join(u'\n'));
}

bool RapportTirage::peutRefaire()
{
    if (m_concours == partage().ConcoursCourant && tourChoisi() == partage().TourCourant && PeutRefaireTour(partage()))
        return true;
    Rafraichir();
    MsgBox(tr("Un résultat de ce tour est saisi : il ne se refait plus."), vbExclamation);
    return false;
}

/// Puts \p propose into the place of the round, behind a copy, and shows it wherever the round is on the screen.
void RapportTirage::remplace(const TourPropose &propose)
{
    if (!GardeUneCopie(contexte(), RaisonCopie::Tirage))
        return;
    const QString avant = bilan(m_rapport);
    RemplaceTour(partage(), propose.parties);
    formulaires().Decharge({formes::Groupes});
    for (const NomForme nom : {formes::manqres, formes::valresu, formes::palmares}) {
        if (Formulaire *vue = formulaires().forme(nom))
            vue->Rafraichir();
    }
    m_avant = avant;
    Rafraichir();
}

void RapportTirage::Refaire_Click()
{
    if (!peutRefaire()
        || MsgBox(tr("Refaire le tirage du tour %1 ?").arg(partage().TourCourant) + saut
                      + tr("Le tirage actuel sera remplacé ; une copie en est gardée."),
                  vbYesNo | vbExclamation | vbDefaultButton2)
            != ReponseBoite::Oui)
        return;
    const Sablier sablier;
    remplace(ProposeTour(partage(), partage().TourCourant));
}

void RapportTirage::Meilleur_Click()
{
    if (!peutRefaire())
        return;
    MeilleurTour meilleur;
    {
        PatienceTardive patience(contexte(), tr("Tirages essayés"));
        meilleur = CherchePlusieursTours(partage(), essaisAuPlus, [&](int faits) {
            patience.avance(faits);
            return true;
        });
    }
    const QString question =
        tr("Le meilleur de %n tirage(s) : %1.", nullptr, meilleur.essais).arg(bilan(meilleur.rapport)) + saut
        + tr("Le tirage actuel : %1.").arg(bilan(m_rapport)) + saut + tr("Le mettre à la place ?");
    if (MsgBox(question, vbYesNo | vbExclamation | vbDefaultButton2) != ReponseBoite::Oui || !peutRefaire())
        return;
    const Sablier sablier;
    remplace(meilleur.tour);
}

void RapportTirage::Imprimer_Click()
{
    QStringList lignes;
    for (const moteur::PaireRapportee &paire : m_rapport.paires)
        lignes += remarque(paire);
    ImprimeRapport(contexte(), m_rapport, m_matiere.tousLesClubs, entetes(), lignes, m_ui->Bilan->text(),
                   windowTitle());
}

void RapportTirage::Fiches_Click()
{
    ImprimeFiches(contexte(), m_rapport,
                  {tr("Tour %1").arg(m_rapport.tour), tr("Terrain"), tr("Score"), tr("exempte")});
}
