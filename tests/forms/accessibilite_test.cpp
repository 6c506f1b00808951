// What a screen reader finds on each form: every control named, once, with its role and its state, in reading order.
#include "app/langue.h"
#include "commun/affiche.h"
#include "commun/concours_en_base.h"
#include "commun/programme_pilote.h"
#include "platform/touches_alt.h"
#include "printing/resusoc.h"
#include "results/detail_resultats.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTableView>

namespace {

/// As screen readers name a control: a combo by the label that points at it, since its own name is the chosen line.
QString nomLu(QAccessibleInterface &lecture)
{
    if (lecture.role() == QAccessible::ComboBox)
        for (const auto &[autre, lien] : lecture.relations(QAccessible::Label))
            return autre->text(QAccessible::Name);
    return lecture.text(QAccessible::Name).trimmed();
}

bool montre(const QAccessibleInterface &lecture)
{
    return !lecture.state().invisible && !lecture.state().offscreen;
}

/// Role that \p controle must have; NoRole for what nobody works with.
QAccessible::Role roleVoulu(const QWidget &controle)
{
    const std::pair<const char *, QAccessible::Role> roles[] = {
        {"QCheckBox", QAccessible::CheckBox},     {"QRadioButton", QAccessible::RadioButton},
        {"QPushButton", QAccessible::PushButton}, {"QToolButton", QAccessible::PushButton},
        {"QComboBox", QAccessible::ComboBox},     {"QLineEdit", QAccessible::EditableText},
        {"QTableView", QAccessible::Table},       {"QListWidget", QAccessible::List},
        {"QTabBar", QAccessible::PageTabList},    {"QPlainTextEdit", QAccessible::EditableText},
        {"Cadran", QAccessible::Clock},           {"Rouleau", QAccessible::Graphic},
    };
    for (const auto &[classe, role] : roles)
        if (controle.inherits(classe))
            return role;
    return QAccessible::NoRole;
}

/// Interfaces of the controls that somebody works with or reads, shown just now, in the order of the tree.
std::vector<QAccessibleInterface *> controles(QWidget &fenetre)
{
    std::vector<QAccessibleInterface *> trouves;
    const std::function<void(QAccessibleInterface &)> visite = [&](QAccessibleInterface &lecture) {
        for (int i = 0; i < lecture.childCount(); ++i) {
            QAccessibleInterface *enfant = lecture.child(i);
            auto *controle = enfant == nullptr ? nullptr : qobject_cast<QWidget *>(enfant->object());
            if (controle == nullptr || !montre(*enfant))
                continue;
            if (roleVoulu(*controle) != QAccessible::NoRole)
                trouves.push_back(enfant);
            else
                visite(*enfant);
        }
    };
    visite(*QAccessible::queryAccessibleInterface(&fenetre));
    return trouves;
}

class Lecture : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(prog.demarre());
        const qint32 concours = poseConcours(prog.base(), {.equipes = {{1, u"A"_qs}, {2, u"B"_qs}, {3, u"C"_qs},
                                                                       {4, u"D"_qs}}});
        poseRencontres(prog.base(), concours,
                       {{.tour = 1, .equipe1 = 1, .equipe2 = 2, .score1 = 13, .score2 = 7},
                        {.tour = 1, .equipe1 = 3, .equipe2 = 4}});
        prog.partage().ConcoursCourant = concours;
    }

    void langue(int numero)
    {
        prog.base().Execute(u"update traduc set actif = false");
        prog.base().Execute(u"update traduc set actif = true where numero = %1"_qs.arg(numero));
        ChargeLangue(prog.partage());
    }

    /// The form, open as its users open it.
    QWidget *ouvre(const QString &nom)
    {
        if (nom == u"Torvik")
            return prog.torvik();
        prog.formulaires().DechargeTout();
        if (QStringList{u"manqres"_qs, u"valresu"_qs, u"Groupes"_qs, u"I_tirage"_qs, u"Détail_résultats"_qs}.contains(nom))
            prog.formulaires().Montre(u"EResultats"_qs);
        if (nom == u"Groupes")
            prog.formulaires().Montre(u"manqres"_qs);
        Formulaire *forme = prog.formulaires().Charge(nom);
        if (auto *feuilles = qobject_cast<Resusoc *>(forme))
            feuilles->propose(1, u"1 (Aix)"_qs, u"2 (Aix)"_qs);
        if (auto *detail = qobject_cast<DetailResultats *>(forme))
            detail->affiche(1);
        prog.formulaires().Montre(nom);
        QApplication::processEvents();
        return prog.formulaires().forme(nom);
    }

    ProgrammePilote prog;
    const QStringList formes{u"Torvik"_qs,     u"Accueil"_qs,  u"Alerte"_qs,   u"Econcours"_qs,  u"Eequipes"_qs,
                             u"Ejoueurs"_qs,   u"Listesoc"_qs, u"listeq"_qs,   u"listjo"_qs,     u"Listco"_qs,
                             u"EResultats"_qs, u"manqres"_qs,  u"valresu"_qs,  u"Groupes"_qs,    u"Détail_résultats"_qs,
                             u"I_tirage"_qs,   u"palmares"_qs, u"Resusoc"_qs,  u"FrmHorloge"_qs, u"langues"_qs};
};

TEST_F(Lecture, Arbre)
{
    const std::function<void(QAccessibleInterface &, int)> visite = [&](QAccessibleInterface &lecture, int niveau) {
        if (niveau > 4) return;
        for (int i = 0; i < std::min(lecture.childCount(), 30); ++i) {
            QAccessibleInterface *e = lecture.child(i);
            if (e == nullptr || e->state().invisible) continue;
            printf("%*s[%s] '%s' v='%s' d='%s' %s%s%s%s%s %s\n", niveau * 2, "", qPrintable(QVariant::fromValue(e->role()).toString().isEmpty()? QString::number(e->role(),16) : QString(QMetaEnum::fromType<QAccessible::Role>().valueToKey(e->role()))),
                qPrintable(e->text(QAccessible::Name)), qPrintable(e->text(QAccessible::Value)), qPrintable(e->text(QAccessible::Description)),
                e->state().disabled ? "dis " : "", e->state().checked ? "chk " : "", e->state().readOnly ? "ro " : "", e->state().focusable ? "foc " : "", e->state().offscreen?"off ":"",
                e->object() ? qPrintable(e->object()->objectName()) : "");
            visite(*e, niveau + 1);
        }
    };
    for (const QString &nom : formes) {
        QWidget *f = ouvre(nom);
        printf("== %s %d\n", qPrintable(nom), f != nullptr);
        if (f == nullptr) continue;
        visite(*QAccessible::queryAccessibleInterface(f), 1);
        for (const ToucheAlt &t : TouchesAlt(*f)) printf("   Alt+%s %s %d\n", qPrintable(QString(t.signe)), t.controle ? qPrintable(t.controle->objectName()) : "menu", t.duSysteme);
    }
}

} // namespace
