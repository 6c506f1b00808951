#include "ui/langues.h"

#include "partage/langue.h"
#include "ui_langues.h"

using store::Recordset;

langues::langues(const Contexte &contexte, QWidget *parent)
    : Formulaire(contexte, parent)
    , m_ui(std::make_unique<Ui::langues>())
{
    m_ui->setupUi(this);
    prepareControles();
    surChoix(m_ui->Qlang, [this] { Qlang_Click(); });
}

langues::~langues() = default;

void langues::Form_Load()
{
    LegendesLangues();
    m_ui->Qlang->clear();
    int active = -1; // without an active language nothing is shown
    Recordset traduc = partage().BaseDonnees.OpenRecordset(u"traduc", store::dbOpenTable);
    traduc.Index(u"alpha");
    for (traduc.MoveFirst(); !traduc.Eof(); traduc.MoveNext()) {
        const QString designation = traduc[u"designation"].texte();
        m_ui->Qlang->addItem(designation);
        if (traduc[u"actif"].booleen())
            active = m_ui->Qlang->count() - 1;
    }
    m_ui->Qlang->setCurrentIndex(active);
}

void langues::LegendesLangues()
{
    setWindowTitle(mes(94));
    m_ui->Label1->setText(mes(94));
}

std::optional<qint16> langues::activeLangue(const QString &designation)
{
    Recordset traduc = partage().BaseDonnees.OpenRecordset(u"traduc", store::dbOpenTable);
    traduc.Index(u"alpha");
    traduc.Seek(u"=", {designation});
    if (traduc.NoMatch())
        return {};
    traduc.Edit();
    traduc[u"actif"] = true;
    traduc.Update();
    const auto numero = qint16(traduc[u"numero"].entier());

    // The language shown so far goes out after the new one has come in, even when both are the same.
    traduc.Index(u"num");
    traduc.Seek(u"=", {partage().LangueCourante});
    if (!traduc.NoMatch()) {
        traduc.Edit();
        traduc[u"actif"] = false;
        traduc.Update();
    }
    return numero;
}

void langues::Qlang_Click()
{
    std::optional<qint16> numero;
    partage().BaseDonnees.EcritEnGroupe([&] { numero = activeLangue(m_ui->Qlang->currentText()); });
    if (!numero)
        MsgBox(mes(52));
    partage().LangueCourante = numero.value_or(0);
    ChargeLangue(partage());
    Q_EMIT langueChargee();
}
