#include "app/accueil.h"

#include "partage/routines.h"
#include "ui_accueil.h"

namespace {

const QString ligneEditeur = u"L'équipe VarloTour"_qs;

} // namespace

Accueil::Accueil(const Contexte &contexte, QWidget *parent)
    : Formulaire(contexte, parent)
    , m_ui(std::make_unique<Ui::Accueil>())
{
    m_ui->setupUi(this);
    prepareControles();
}

Accueil::~Accueil() = default;

void Accueil::Form_Load()
{
    LegendesAccueil();
    m_ui->Apropos->setPlainText(nomProgramme + versionProgramme + u'\n' + partage().Traducteur + u'\n' + ligneEditeur);
}

/// The form stands high on the screen, in front of all others.
void Accueil::LegendesAccueil()
{
    FenetreDessus(*this, true);
    place([this] { Move(Ecran::Width() / 2 - Width() / 2, Ecran::Height() / 2 - 2 * Height()); });
}
