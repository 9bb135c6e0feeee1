// Bounded reads of the user's files: the limit exactly, files longer than one read's piece.
#include "toolkit/guarded_file.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

QString written(const QTemporaryDir& dir, const QString& name, const QByteArray& bytes)
{
    const QString path = dir.filePath(name);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(bytes);
    return path;
}

TEST(GuardedFile, ABoundedReadTakesFilesUpToTheLimitWholeAndNothingLonger)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    // Longer than the pieces the file is read in, with every byte in its place.
    QByteArray large(100'000, '\0');
    for (qsizetype i = 0; i < large.size(); ++i)
        large[i] = static_cast<char>(i * 7 % 251);
    const QString path = written(dir, QStringLiteral("large"), large);
    EXPECT_EQ(GuardedFile::readBounded(path, 100'000), large);
    EXPECT_EQ(GuardedFile::readBounded(path, 1'000'000), large);
    EXPECT_FALSE(GuardedFile::readBounded(path, 99'999)) << "one byte over the limit";

    EXPECT_EQ(GuardedFile::readBounded(written(dir, QStringLiteral("empty"), {}), 10), QByteArray());
    EXPECT_FALSE(GuardedFile::readBounded(dir.path(), 10)) << "a folder is not read";
    EXPECT_FALSE(GuardedFile::readBounded(dir.filePath(QStringLiteral("missing")), 10));
}

} // namespace
