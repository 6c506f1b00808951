#include "registration/forme_inscription.h"

#include "donnees/clubs.h"
#include "fenetres/formulaires.h"
#include "noms/formes.h"
#include "partage/routines.h"
#include "store/collation.h"
#include "store/passe_erreur.h"

#include <QComboBox>
#include <QLineEdit>

using store::EstNumerique;
using store::Val;

namespace {

// Twips
constexpr int margeBasse = 1500;
constexpr int margeGauche = 50;

} // namespace

QString NumeroAffiche(qint64 numero)
{
    constexpr qsizetype largeur = 4;
    const QString chiffres = QString::number(numero);
    return ZeroPad(chiffres, int(std::max(chiffres.size(), largeur)));
}

void FormeInscription::relie(const Champs &champs)
{
    m_champs = champs;
    surKeyDown(champs.Equipe, [this](int code, int maj) { Equipe_KeyDown(code, maj); });
    surChoix(champs.Equipe, [this] { Equipe_KeyDown(Touche::Entree, 0); });
    surSortie(champs.Equipe, [this] { Equipe_LostFocus(); });
    surSortie(champs.Société, [this] { Société_LostFocus(); });
    surMouseDown(champs.Label1, [this](int, int) { Label1_Click(); });
}

void FormeInscription::surSortie(QWidget *controle, Traitement traitement)
{
    surLostFocus(controle, [this, controle, traitement = std::move(traitement)] {
        if (m_sortieFaite != controle)
            traitement();
    });
}

void FormeInscription::placeForme()
{
    place([this] { Move(margeGauche, Ecran::Height() - Height() - margeBasse); });
}

/// The number in `Equipe`, 0 when the text is none.
double FormeInscription::numeroTape() const
{
    constexpr double borne = 1e9;
    const QString texte = m_champs.Equipe->currentText();
    return EstNumerique(texte) ? std::clamp(Val(texte), -borne, borne) : 0;
}

void FormeInscription::poseNumero(const QString &texte)
{
    poseTexte(m_champs.Equipe, texte);
}

void FormeInscription::proposeSuivante(std::optional<qint64> maxe)
{
    poseNumero(NumeroAffiche(maxe.value_or(0) + 1));
}

std::size_t FormeInscription::remplitNumeros()
{
    QString proposition = m_champs.Equipe->currentText();
    const std::vector<qint64> numeros = donnees::NumerosDesEquipes(partage().BaseDonnees, concoursSaisi());
    QStringList lignes;
    for (const qint64 numero : numeros)
        lignes += NumeroAffiche(numero);
    if (!numeros.empty())
        proposition = NumeroAffiche(numeros.back() + 1);
    m_champs.Equipe->clear();
    m_champs.Equipe->addItems(lignes);
    poseNumero(proposition);
    return numeros.size();
}

void FormeInscription::retireDeLaListe(qint64 numero)
{
    const QString tape = m_champs.Equipe->currentText();
    for (int i = m_champs.Equipe->count() - 1; i >= 0; --i) {
        if (m_champs.Equipe->itemText(i).toLongLong() == numero)
            m_champs.Equipe->removeItem(i);
    }
    poseNumero(tape);
}

void FormeInscription::Equipe_KeyDown(int KeyCode, int)
{
    if (!Touche::Avance(KeyCode))
        return;
    const auto faite = sortieFaite(m_champs.Equipe);
    Equipe_LostFocus();
}

void FormeInscription::Equipe_LostFocus()
{
    std::optional<qint64> maxe;
    PasseErreur([&] { maxe = donnees::PlusHautNumero(partage().BaseDonnees, concoursSaisi()); });
    if (numeroTape() < 1 || (maxe && numeroTape() > double(*maxe + 1))) {
        refuseNumero(maxe);
        return;
    }
    bool lue = true;
    PasseErreur([&] { lue = litNumero(maxe); });
    if (lue)
        SetFocus(m_champs.Société);
}

void FormeInscription::refuseNumero(std::optional<qint64> maxe)
{
    MsgBox(mes(81) + u"\r\n"_qs + mes(82));
    poseNumero(NumeroAffiche(maxe.value_or(1)));
    SetFocus(m_champs.Equipe);
    m_champs.Equipe->lineEdit()->selectAll();
}

/// Shows what the number typed stands for, or proposes the next free number instead of one that nobody bears: gaps are
/// never filled.
bool FormeInscription::litNumero(std::optional<qint64> maxe)
{
    const std::vector<donnees::Membre> membres =
        donnees::MembresDeLEquipe(partage().BaseDonnees, concoursSaisi(), numeroEquipe());
    if (!membres.empty())
        return montreConnu(membres);
    proposeSuivante(maxe);
    return true;
}

QString FormeInscription::sansBlancs(QLineEdit *champ)
{
    const QString texte = champ->text().trimmed();
    if (texte != champ->text())
        champ->setText(texte);
    return texte;
}

bool FormeInscription::memeTexte(const QString &a, const QString &b)
{
    return store::CompareFrancais(a, b) == 0;
}

void FormeInscription::signaleEngagement(const donnees::Membre &engage, int place, const Ligne &ligne)
{
    if (engage.equipe == numeroEquipe() && engage.place == place)
        return;
    const QString saut = u"\r\n"_qs;
    const QString joueur = u"%1 %2(%3)"_qs.arg(engage.nom, engage.prenom, engage.club);
    MsgBox(mes(103) + u" : "_qs + ligne.LicenceJ->text() + saut + mes(19) + u" : "_qs + joueur + saut + mes(104) + u' '
               + mes(17) + QString::number(engage.equipe) + saut + saut + mes(105),
           vbYesNoDevant);
    const bool memePersonne = memeTexte(engage.nom, ligne.NomJ->text())
        && memeTexte(engage.prenom, ligne.PrénomJ->text()) && memeTexte(engage.club, m_champs.Société->text());
    if (memePersonne) {
        ligne.NomJ->clear();
        ligne.PrénomJ->clear();
    }
    SetFocus(memePersonne ? ligne.NomJ : ligne.LicenceJ);
    ligne.LicenceJ->clear();
}

bool FormeInscription::refuseSansClub()
{
    if (!sansBlancs(m_champs.Société).isEmpty())
        return false;
    MsgBox(u"Le nom du club est obligatoire"_qs);
    Form_Click();
    SetFocus(m_champs.Société);
    return true;
}

void FormeInscription::Société_LostFocus()
{
    const QString club = sansBlancs(m_champs.Société);
    if (club.isEmpty() || club.toUpper() == mes(80))
        return;
    if (donnees::TrouveClub(partage().BaseDonnees, club))
        return;
    montreListesoc();
    if (MsgBox(mes(92), vbYesNo) == ReponseBoite::Oui) {
        ajouteClub(club);
        return;
    }
    m_champs.Société->clear();
    SetFocus(m_champs.Société);
}

void FormeInscription::ajouteClub(const QString &club)
{
    donnees::AjouteClub(partage().BaseDonnees, club);
    if (Formulaire *liste = formulaires().forme(formes::Listesoc))
        liste->Form_Load();
    SetFocus(m_champs.premierNom);
}

void FormeInscription::Form_Click()
{
    montreListesoc();
}

void FormeInscription::Label1_Click()
{
    montreListesoc();
}

void FormeInscription::montreListesoc()
{
    placeListesoc(largeurClubs);
    formulaires().MontreSansFocus(formes::Listesoc);
}

/// The clubs stand at the right side of the form, as high as it.
void FormeInscription::placeListesoc(int largeur)
{
    if (Formulaire *liste = formulaires().Charge(formes::Listesoc))
        liste->Move(Left() + Width(), Top(), largeur, Height());
}
