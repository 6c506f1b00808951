#include "commun/programme_pilote.h"
#include "fenetres/patience.h"

namespace {

const QString alerte = u"Alerte"_qs;

class Attente : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(prog.demarre()); }

    QString dit() { return prog.controle<QPlainTextEdit>(alerte, u"Text1"_qs)->toPlainText(); }
    Contexte contexte() { return {prog.partage(), prog.formulaires(), prog.boites}; }

    ProgrammePilote prog;
};

TEST_F(Attente, LAvisNeVientQueSiLOperationDure)
{
    {
        PatienceTardive patience(contexte(), u"Lecture"_qs);
        QTest::qSleep(60);
        patience.avance(1);
        EXPECT_NE(QApplication::overrideCursor(), nullptr);
        EXPECT_FALSE(prog.formulaires().estChargee(alerte));
        QTest::qSleep(1000);
        patience.avance(1234);
        EXPECT_TRUE(prog.formulaires().estVisible(alerte));
        EXPECT_TRUE(dit().startsWith(u"Lecture\n"_qs));
        EXPECT_EQ(dit().remove(QRegularExpression(u"\\D"_qs)), u"1234"_qs);
        QTest::qSleep(60);
        patience.avance(5000);
        EXPECT_EQ(dit().remove(QRegularExpression(u"\\D"_qs)), u"5000"_qs);
    }
    EXPECT_FALSE(prog.formulaires().estChargee(alerte));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

} // namespace
