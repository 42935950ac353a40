#include "card/load_picture.h"

#include <sys/stat.h>

#include <QBuffer>

#include "tests/card/huge_picture.h"
#include "tests/files/temp_drives.h"

namespace bramlee {
namespace {

QByteArray Coded(const QImage& image, const char* format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  EXPECT_TRUE(image.save(&buffer, format));
  return bytes;
}

QImage Plain(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(0xFF2050A0);
  return image;
}

class LoadPictureOf : public TempDrives {
 protected:
  QPixmap Load(const QByteArray& bytes) const {
    WriteBytes(On("c/a.jpg"), bytes);
    return LoadPicture(QStringLiteral(" C:\\A.JPG "));
  }
};

TEST_F(LoadPictureOf, JpegAndPngWhateverTheName) {
  EXPECT_EQ(Load(Coded(Plain(30, 20), "JPEG")).size(), QSize(30, 20));
  EXPECT_EQ(Load(Coded(Plain(30, 20), "PNG")).size(), QSize(30, 20));
  EXPECT_EQ(Load(Coded(Plain(30, 20), "BMP")).size(), QSize(30, 20));
}

TEST_F(LoadPictureOf, ALargeOneIsScaledWithoutDistortion) {
  EXPECT_EQ(Load(Coded(Plain(6000, 3000), "JPEG")).size(), QSize(1024, 512));
  EXPECT_EQ(Load(Coded(Plain(1000, 4000), "PNG")).size(), QSize(256, 1024));
  EXPECT_EQ(Load(Coded(Plain(9000, 1), "PNG")).size(), QSize(1024, 1));
}

TEST_F(LoadPictureOf, WhatIsNoPictureIsNull) {
  EXPECT_TRUE(Load({}).isNull());
  EXPECT_TRUE(Load("no picture").isNull());
  EXPECT_TRUE(Load(QByteArray(100'000, '\xff')).isNull());
  EXPECT_TRUE(Load("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>").isNull());
  EXPECT_TRUE(LoadPicture(QStringLiteral("C:\\gone.jpg")).isNull());
  EXPECT_TRUE(LoadPicture(QStringLiteral("C:\\")).isNull());
  EXPECT_TRUE(LoadPicture({}).isNull());
}

TEST_F(LoadPictureOf, APipeIsNullAndDoesNotWait) {
  ASSERT_EQ(mkfifo(QFile::encodeName(On("c/pipe.jpg")).constData(), 0644), 0);
  EXPECT_TRUE(LoadPicture(QStringLiteral("C:\\pipe.jpg")).isNull());
}

TEST_F(LoadPictureOf, ACutPngIsNull) {
  const QByteArray whole = Coded(Plain(300, 200), "PNG");
  for (int length = 1; length < whole.size() / 2; length += 7) {
    EXPECT_TRUE(Load(whole.left(length)).isNull()) << length;
  }
}

TEST_F(LoadPictureOf, OneThatClaimsToBeHugeIsNull) {
  EXPECT_FALSE(Load(PngThatClaims(4, 4)).isNull());
  EXPECT_TRUE(Load(PngThatClaims(1'000'000, 1'000'000)).isNull());
  EXPECT_TRUE(Load(PngThatClaims(20'000, 20'000)).isNull());
  QByteArray bmp = Coded(Plain(4, 4), "BMP");
  EXPECT_FALSE(Load(bmp).isNull());
  bmp.replace(18, 8, QByteArray("\x40\x42\x0f\x00\x40\x42\x0f\x00", 8));
  EXPECT_TRUE(Load(bmp).isNull());
  QByteArray jpeg = Coded(Plain(4, 4), "JPEG");
  const qsizetype frame = jpeg.indexOf(QByteArray("\xff\xc0", 2));
  ASSERT_GT(frame, 0);
  jpeg.replace(frame + 5, 4, QByteArray("\xff\xdc\xff\xdc", 4));  // 65500 by 65500
  EXPECT_TRUE(Load(jpeg).isNull());
}

TEST_F(LoadPictureOf, ACutJpegIsNoCrash) {
  const QByteArray whole = Coded(Plain(300, 200), "JPEG");
  for (int length = 1; length < whole.size(); length += 7) {
    const QPixmap loaded = Load(whole.left(length));
    EXPECT_TRUE(loaded.isNull() || loaded.size() == QSize(300, 200)) << length;
  }
}

}  // namespace
}  // namespace bramlee
