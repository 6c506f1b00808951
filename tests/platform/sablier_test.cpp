#include "fenetres/sablier.h"
#include "store/valeur.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {

bool attend()
{
    return QApplication::overrideCursor() != nullptr && QApplication::overrideCursor()->shape() == Qt::WaitCursor;
}

TEST(Sablier, LePointeurRevientAvecLeDernier)
{
    {
        const Sablier dehors;
        EXPECT_TRUE(attend());
        {
            const Sablier dedans;
            {
                const Sablier::Pause boite;
                EXPECT_EQ(QApplication::overrideCursor(), nullptr);
            }
            EXPECT_TRUE(attend());
        }
        EXPECT_TRUE(attend());
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    {
        const Sablier::Pause sansAttente;
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(Sablier, UnSecondClicImpatientNeRelanceRien)
{
    QPushButton bouton;
    bouton.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&bouton));
    const QPointF milieu = bouton.rect().center();
    const auto metEnAttente = [&](QEvent::Type type) {
        QCoreApplication::postEvent(bouton.windowHandle(),
                                    new QMouseEvent(type, milieu, bouton.mapToGlobal(milieu), Qt::LeftButton,
                                                    type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                                                    Qt::NoModifier));
    };
    int fois = 0;
    int duree = 0;
    QObject::connect(&bouton, &QPushButton::clicked, &bouton, [&] {
        if (++fois > 1)
            return;
        const Sablier sablier;
        QTest::qSleep(duree);
        metEnAttente(QEvent::MouseButtonPress);
        metEnAttente(QEvent::MouseButtonRelease);
    });
    for (const auto &[attente, clics] : {std::pair{0, 2}, std::pair{320, 1}}) {
        fois = 0;
        duree = attente;
        QTest::mouseClick(bouton.windowHandle(), Qt::LeftButton, {}, milieu.toPoint());
        QTest::qWait(20);
        EXPECT_EQ(fois, clics) << "while it waited " << attente << " ms";
    }
    QTest::mouseClick(bouton.windowHandle(), Qt::LeftButton, {}, milieu.toPoint());
    EXPECT_EQ(fois, 2) << "clicks count again";
}

} // namespace
