#include "registration/listco.h"

#include "donnees/concours.h"
#include "partage/routines.h"
#include "ui_listco.h"

Listco::Listco(const Contexte &contexte, QWidget *parent)
    : FormeListe(contexte, parent)
    , m_ui(std::make_unique<Ui::Listco>())
{
    m_ui->setupUi(this);
    prepareControles();
    prendGrille(m_ui->Liste_c, [](int, int) {});
}

Listco::~Listco() = default;

void Listco::LegendesListco()
{
    FenetreDessus(*this, false);
    setWindowTitle(mes(29));
    m_ui->Liste_c->setAccessibleName(mes(29));
}

QString Listco::format() const
{
    return complete(mes(1), 15) + u"|<"_qs + complete(mes(7), 20) + u"|<"_qs + complete(mes(8), 55) + u"|<"_qs
        + complete(mes(10), 30) + u"|<"_qs + complete(u"Catégorie"_qs, 30);
}

void Listco::Form_Load()
{
    LegendesListco();
    remplit(format(), [this] {
        for (const donnees::Concours &concours : donnees::ListeConcours(partage().BaseDonnees))
            ajoute({QString::number(concours.numero), FormateDate(partage(), concours.date), concours.lieu,
                    concours.type, concours.categorie});
    });
}
