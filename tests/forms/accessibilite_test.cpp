// What a screen reader finds on each form: every control named, once, with its role and its state, in reading order.
#include "fenetres/touches_alt.h"
#include "formes_ouvertes.h"

#include <QAccessible>
#include <QListWidget>
#include <QMainWindow>
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
        {"QCheckBox", QAccessible::CheckBox},
        {"QRadioButton", QAccessible::RadioButton},
        {"QPushButton", QAccessible::PushButton},
        {"QToolButton", QAccessible::PushButton},
        {"QComboBox", QAccessible::ComboBox},
        {"QLineEdit", QAccessible::EditableText},
        {"QTableView", QAccessible::Table},
        {"QListWidget", QAccessible::List},
        {"QSpinBox", QAccessible::SpinBox},
        {"QTabBar", QAccessible::PageTabList},
        {"QPlainTextEdit", QAccessible::EditableText},
        {"Cadran", QAccessible::Graphic},
        {"Rouleau", QAccessible::Graphic},
    };
    if (const auto *bouton = qobject_cast<const QPushButton *>(&controle); bouton != nullptr && bouton->isCheckable())
        return QAccessible::CheckBox;
    for (const auto &[classe, role] : roles) {
        if (controle.inherits(classe))
            return role;
    }
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

class Lecture : public FormesOuvertes
{
protected:
    QStringList fenetres() { return noms() + QStringList{u"Torvik"_qs}; }
};

/// Place of a control on its window, for whoever reads it line by line: a control stands before another when it is
/// above it, or on its left in the same line.
bool seLitAvant(const QRect &a, const QRect &b)
{
    const bool memeLigne = a.top() <= b.center().y() && b.top() <= a.center().y();
    return memeLigne ? a.left() <= b.left() : a.top() <= b.top();
}

TEST_F(Lecture, ChaqueControleAUnNomUnRoleEtUnEtat)
{
    for (const QString &nom : fenetres()) {
        QWidget *forme = ouvre(nom);
        ASSERT_NE(forme, nullptr) << nom.toStdString();
        QStringList noms;
        const std::vector<QAccessibleInterface *> lus = controles(*forme);
        EXPECT_FALSE(lus.empty()) << nom.toStdString();
        EXPECT_EQ(QAccessible::queryAccessibleInterface(forme)->role(), QAccessible::Window);
        EXPECT_EQ(QAccessible::queryAccessibleInterface(forme)->text(QAccessible::Name), forme->windowTitle());
        for (QAccessibleInterface *lu : lus) {
            const auto &controle = *qobject_cast<QWidget *>(lu->object());
            SCOPED_TRACE((nom + u'.' + controle.objectName()).toStdString());
            EXPECT_NE(nomLu(*lu), QString());
            EXPECT_FALSE(noms.contains(nomLu(*lu))) << nomLu(*lu).toStdString();
            noms += nomLu(*lu);
            EXPECT_EQ(lu->role(), roleVoulu(controle));
            EXPECT_EQ(bool(lu->state().disabled), !controle.isEnabled());
            const auto *bouton = qobject_cast<const QAbstractButton *>(&controle);
            EXPECT_EQ(bool(lu->state().checked), bouton != nullptr && bouton->isChecked());
            const auto *texte = qobject_cast<const QPlainTextEdit *>(&controle);
            EXPECT_EQ(bool(lu->state().readOnly), texte != nullptr && texte->isReadOnly());
            const auto *combo = qobject_cast<const QComboBox *>(&controle);
            EXPECT_TRUE(combo == nullptr || !combo->isEditable() || combo->lineEdit()->accessibleName() == nomLu(*lu));
        }
    }
}

/// Tab follows the told order on the two forms that have one, and comes to the club of a player first; elsewhere, as
/// the screen reader does, it goes from left to right and down, section by section.
TEST_F(Lecture, OrdreDeLectureEtDesTabulations)
{
    const QHash<QString, QString> ordres{
        {u"Econcours"_qs, u"référence Text2 Text3 Text4 Combo1 ok Supprimer Command1 text1 Check1 Dupliquer Check4"_qs},
        {u"Eequipes"_qs,
         u"Société référence Equipe LicenceJ_0 NomJ_0 PrénomJ_0 LicenceJ_1 NomJ_1 PrénomJ_1 LicenceJ_2 "
         "NomJ_2 PrénomJ_2 NomJ_3 PrénomJ_3 LicenceJ_3 Okc SupprimerC cImport Command1 Command2"_qs}};
    for (const QString &nom : fenetres()) {
        QWidget *forme = ouvre(nom);
        const std::vector<QAccessibleInterface *> lus = controles(*forme);
        const std::vector<QWidget *> tabulations = OrdreDesTabulations(*forme);
        QStringList nomsTabulations;
        for (const QWidget *controle : tabulations)
            nomsTabulations += controle->objectName();
        EXPECT_EQ(nomsTabulations.join(u' '), ordres.value(nom, nomsTabulations.join(u' ')));
        qsizetype rangTabulation = -1;
        QRect precedent;
        for (const QAccessibleInterface *lu : lus) {
            const auto *controle = qobject_cast<const QWidget *>(lu->object());
            SCOPED_TRACE((nom + u'.' + controle->objectName()).toStdString());
            const QRect place(controle->mapTo(forme, QPoint()), controle->size());
            const bool colonneSuivante = place.left() >= precedent.right();
            EXPECT_TRUE(precedent.isNull() || colonneSuivante || seLitAvant(precedent, place));
            precedent = place;
            if (!lu->state().focusable)
                continue;
            const auto rang = std::ranges::find(tabulations, controle) - tabulations.begin();
            ASSERT_LT(rang, std::ssize(tabulations)) << "out of reach of the Tab key";
            EXPECT_TRUE(rang > rangTabulation || ordres.contains(nom) || nom == u"Ejoueurs");
            rangTabulation = rang;
        }
    }
}

TEST_F(Lecture, LesGrillesDisentCeQuElesMontrent)
{
    ouvre(u"valresu"_qs);
    auto *grille = prog.controle<QTableView>(u"valresu"_qs, u"les_resultats"_qs);
    QAccessibleTableInterface *joues = QAccessible::queryAccessibleInterface(grille)->tableInterface();
    ASSERT_NE(joues, nullptr);
    ASSERT_EQ(joues->rowCount(), 1);
    QStringList titres;
    QStringList cellules;
    for (int colonne = 0; colonne < joues->columnCount(); ++colonne) {
        titres += joues->columnDescription(colonne);
        cellules += joues->cellAt(0, colonne)->text(QAccessible::Name) + u' '
            + joues->cellAt(0, colonne)->text(QAccessible::Description);
    }
    EXPECT_EQ(cellules.join(u'|'), u"1 |1 gagne|2 perd|13 |7 "_qs);
    EXPECT_EQ(joues->cellAt(0, 3)->tableCellInterface()->columnHeaderCells().value(0)->text(QAccessible::Name),
              u"Score 1"_qs);
}

TEST_F(Lecture, LesNomsEtLesTouchesSuiventLaLangue)
{
    const auto dit = [this](const QString &forme, const QString &nom) {
        ouvre(forme);
        return NomDuControle(*prog.controle<QWidget>(forme, nom));
    };
    for (int numero = 1; numero <= langues; ++numero) {
        langue(numero);
        const auto mes = [this](int i) { return prog.partage().mes(i); };
        EXPECT_EQ(dit(u"Econcours"_qs, u"ok"_qs), mes(13));
        EXPECT_EQ(dit(u"Econcours"_qs, u"text1"_qs), mes(127));
        EXPECT_EQ(dit(u"Eequipes"_qs, u"LicenceJ_2"_qs), mes(21) + u" 3"_qs);
        EXPECT_EQ(dit(u"EResultats"_qs, u"Score2"_qs), mes(25) + u',' + mes(108));
        EXPECT_EQ(dit(u"EResultats"_qs, u"hit"_qs), mes(33));
        EXPECT_EQ(dit(u"Listesoc"_qs, u"Liste_soc"_qs), mes(31));
        for (const QString &nom : fenetres()) {
            QString pris;
            for (const ToucheAlt &touche : TouchesAlt(*ouvre(nom))) {
                EXPECT_FALSE(pris.contains(touche.signe)) << nom.toStdString() << ' ' << numero;
                pris += touche.signe;
            }
        }
    }
}

} // namespace
