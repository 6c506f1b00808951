#include "registration/listco.h"

#include "app/routines.h"
#include "ui_listco.h"

using store::Recordset;

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
    return cadre(mes(1), 15) + u"|<"_qs + cadre(mes(7), 20) + u"|<"_qs + cadre(mes(8), 55) + u"|<"_qs
        + cadre(mes(10), 30) + u"|<"_qs + cadre(u"Catégorie"_qs, 30);
}

void Listco::Form_Load()
{
    LegendesListco();
    remplit(format(), [this] {
        Recordset concours = partage().BaseDonnees.OpenRecordset(u"SELECT * FROM [Concours] order by [concours]");
        for (; !concours.Eof(); concours.MoveNext())
            ajoute({concours[u"concours"].texte(), FormateDate(partage(), concours[u"date"]), concours[u"Lieu"].texte(),
                    concours[u"Type"].texte(), concours[u"categorie"].texte()});
    });
}
