// The sound of the alarm: the same bytes everywhere, loud at the stroke, gone at the end.

#include <QCryptographicHash>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtEndian>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr qsizetype entete = 44;

int plusFort(const QByteArray &son, qsizetype debut, qsizetype fin)
{
    int crete = 0;
    for (qsizetype i = debut; i < fin; ++i)
        crete = std::max(crete, std::abs(int(qFromLittleEndian<qint16>(son.constData() + entete + 2 * i))));
    return crete;
}

} // namespace

TEST(Creeson, UneClochePcmToujoursLaMeme)
{
    QTemporaryDir dossier;
    const QString nom = dossier.filePath(QStringLiteral("drelin.WAV"));
    ASSERT_EQ(QProcess::execute(QStringLiteral(PROGRAMME_CREESON), {nom}), 0);
    QFile fichier(nom);
    ASSERT_TRUE(fichier.open(QIODevice::ReadOnly));
    const QByteArray son = fichier.readAll();
    EXPECT_EQ(QCryptographicHash::hash(son, QCryptographicHash::Sha256).toHex(),
              "d9c7e8fc06b55070deeb5010073e842c87eabf1a070f91e4a7041c0cf42c313a");
    ASSERT_EQ(son.left(4) + son.mid(8, 8), "RIFFWAVEfmt ");
    EXPECT_EQ(qFromLittleEndian<quint16>(son.constData() + 20), 1); // PCM
    EXPECT_EQ(qFromLittleEndian<quint16>(son.constData() + 34), 16); // bits
    EXPECT_EQ(qFromLittleEndian<quint32>(son.constData() + 4), son.size() - 8);
    const auto cadence = qsizetype(qFromLittleEndian<quint32>(son.constData() + 24));
    const qsizetype nombre = (son.size() - entete) / 2;
    EXPECT_GE(nombre, cadence * 3 / 2);
    EXPECT_LE(nombre, cadence * 2);
    EXPECT_GT(plusFort(son, 0, cadence / 10), 20000);
    EXPECT_LT(plusFort(son, 0, nombre), 32767);
    EXPECT_LT(plusFort(son, nombre - cadence / 10, nombre), 500);
}
