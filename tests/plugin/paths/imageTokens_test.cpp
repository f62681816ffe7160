#include "plugin/paths/imageTokens.h"

#include <gtest/gtest.h>

namespace {

/// A parameter line as a scene writes it: name, flags, then the value in ( ).
QString parameterLine(const char* name, const char* value)
{
    return QString::fromUtf8(name) + QStringLiteral("\t[ 0\tlocks=0 ]\t(\t")
        + QString::fromUtf8(value) + QStringLiteral("\t)");
}

struct TokenCase
{
    const char* value; // as written inside ( ), quotes included
    const char* stored; // nullptr: nothing stored
    bool singleFile;
};

TEST(ImageTokens, ConvertsValues)
{
    const TokenCase cases[] = {
        { "\"$HIP/render/$HIPNAME.$F4.exr\"", "$HIP/render/$HIPNAME.%4d.exr", false },
        { "\"img.${F4}.exr\"", "img.%4d.exr", false },
        { "\"img.${F}.exr\"", "img.%d.exr", false },
        { "\"img.$FF.exr\"", "img.%1d.exr", false },
        { "\"img.${FF}.exr\"", "img.%1d.exr", false },
        { "\"img.$ff.exr\"", "img.%df.exr", false },
        { "\"img.$F.exr\"", "img.%d.exr", false },
        { "\"img.$F\"", "img.%d", false },
        { "\"$F4/img.$F4.exr\"", "%4d/img.$F4.exr", false },
        { "\"img.$F10.exr\"", "img.%1d0.exr", false },
        { "\"$FOO/img.exr\"", "%dOO/img.exr", false },
        { "\"img.$f4.exr\"", "img.%4d.exr", false },
        { "\"img.$F\u0663.exr\"", "img.%\u0663d.exr", false },
        { "\"/movies/shot.mov\"", "/movies/shot.mov", true },
        { "\"${HIPNAME}/a.exr\"", "$HIPNAME/a.exr", true },
        { "  \"  spaced.exr  \"  ", "spaced.exr", true },
        { "unquoted.exr", "unquoted.exr", true },
        { "\"$HIP/$ACTIVETAKE/`chsop(\"take\")`.exr\"", "$HIP/<Channel>/<Channel>.exr", true },
        { "\"`chs(\"../picture\")`\"", nullptr, true },
        { "\"$HIP/testfile.exr\"", nullptr, true },
        { "\"\"", nullptr, true },
        { "\"", nullptr, true },
        { "\"$F4\"", "%4d", false },
    };
    for (const TokenCase& c : cases) {
        QString imageOut;
        bool takeFound = false;
        bool singleFile = !c.singleFile;
        const bool stored = replaceImageOutVars(
            parameterLine("vm_picture", c.value), false, imageOut, takeFound, singleFile);
        EXPECT_EQ(stored, c.stored != nullptr) << c.value;
        EXPECT_EQ(imageOut, c.stored ? QString::fromUtf8(c.stored) : QString()) << c.value;
        EXPECT_EQ(singleFile, c.singleFile) << c.value;
    }
}

TEST(ImageTokens, MalformedLinesStoreNothing)
{
    const char* lines[]
        = { "", "vm_picture", "vm_picture\t(\t\"a.exr\"", "no parens at all", "vm_picture\t(\t)" };
    for (const char* line : lines) {
        QString imageOut = QStringLiteral("kept");
        bool takeFound = false;
        bool singleFile = false;
        EXPECT_FALSE(
            replaceImageOutVars(QString::fromUtf8(line), false, imageOut, takeFound, singleFile))
            << line;
        EXPECT_EQ(imageOut, QStringLiteral("kept"));
        EXPECT_TRUE(singleFile);
    }
}

TEST(ImageTokens, WithoutOpeningParenthesisTheWholeLineIsTheValue)
{
    QString imageOut;
    bool takeFound = false;
    bool singleFile = false;
    EXPECT_TRUE(replaceImageOutVars(
        QStringLiteral("vm_picture\t)"), false, imageOut, takeFound, singleFile));
    EXPECT_EQ(imageOut, QStringLiteral("vm_picture"));
}

TEST(ImageTokens, OnlyActiveTakeSetsTakeFoundAndItStaysSet)
{
    QString imageOut;
    bool takeFound = false;
    bool singleFile = false;
    replaceImageOutVars(parameterLine("picture", "\"`chsop(\"take\")`.exr\""), false, imageOut,
        takeFound, singleFile);
    EXPECT_FALSE(takeFound);
    replaceImageOutVars(
        parameterLine("picture", "\"$activetake.exr\""), false, imageOut, takeFound, singleFile);
    EXPECT_TRUE(takeFound);
    EXPECT_EQ(imageOut, QStringLiteral("<Channel>.exr"));
    replaceImageOutVars(
        parameterLine("picture", "\"b.exr\""), false, imageOut, takeFound, singleFile);
    EXPECT_TRUE(takeFound);
}

TEST(ImageTokens, PrependPutsTheValueInFront)
{
    QString imageOut = QStringLiteral("B");
    bool takeFound = false;
    bool singleFile = false;
    EXPECT_TRUE(replaceImageOutVars(
        parameterLine("picture", "\"A\""), true, imageOut, takeFound, singleFile));
    EXPECT_EQ(imageOut, QStringLiteral("AB"));
}

TEST(ImageTokens, FailuresLeaveImageOutButSetFlags)
{
    QString imageOut = QStringLiteral("old");
    bool takeFound = false;
    bool singleFile = true;
    EXPECT_FALSE(replaceImageOutVars(parameterLine("picture", "\"$ACTIVETAKE/$F4/chs(x)\""), false,
        imageOut, takeFound, singleFile));
    EXPECT_EQ(imageOut, QStringLiteral("old"));
    EXPECT_TRUE(takeFound);
    EXPECT_FALSE(singleFile);
}

TEST(ImageTokens, SelfReferenceOnlyForTheFirstPath)
{
    const QString line = parameterLine("picture", "\"[ picture]/img.$F4.exr\"");
    QString imageOut;
    bool takeFound = false;
    bool singleFile = false;
    EXPECT_TRUE(replaceImageOutVars(line, false, imageOut, takeFound, singleFile));
    EXPECT_EQ(imageOut, QStringLiteral("/img.%4d.exr"));

    imageOut = QStringLiteral("already");
    EXPECT_FALSE(replaceImageOutVars(line, false, imageOut, takeFound, singleFile));
    EXPECT_EQ(imageOut, QStringLiteral("already"));

    // Another parameter's name is no self reference: the brackets stay.
    imageOut.clear();
    EXPECT_TRUE(replaceImageOutVars(parameterLine("vm_picture", "\"[ picture]/a.exr\""), false,
        imageOut, takeFound, singleFile));
    EXPECT_EQ(imageOut, QStringLiteral("[ picture]/a.exr"));
}

} // namespace
