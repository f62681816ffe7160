#include "sceneGenerator.h"

#include <QByteArray>
#include <QFile>

#include <random>

namespace {

class SceneWriter
{
public:
    explicit SceneWriter(QFile& file)
        : out(file)
    { }

    void line(const QByteArray& text)
    {
        buffer += text;
        buffer += '\n';
        if (buffer.size() >= (1 << 20))
            flush();
    }

    void flush()
    {
        out.write(buffer);
        buffer.clear();
    }

    qint64 written() const { return out.pos() + buffer.size(); }

private:
    QFile& out;
    QByteArray buffer;
};

QByteArray number(double value)
{
    return QByteArray::number(value, 'g', 9);
}

void writeHeader(SceneWriter& w)
{
    w.line("fplayback -i on -r off -f 1001 -e on -h 1 -t 0 -a on -k off -s 1");
    w.line("frange 1001 1240");
    w.line("set -g _HIP_SAVEVERSION = '19.5.303'");
    w.line("set -g JOB = '/proj/show/seq010/sh0100'");
    w.line("set -g SHOT = 'sh0100'");
    w.line("set -g ACTIVETAKE = 'Main'");
    w.line("set -g E = '2.7182818284590452354'");
    w.line("set -g HIPFILE = '/proj/show/seq010/sh0100/scene.hip'");
    w.line("take name Main kids 3");
    for (int t = 0; t < 3; ++t)
        w.line("take name shot_variant" + QByteArray::number(t) + " kids 0");
}

/// A geometry or material node: member headers, flags, expressions and a
/// parameter block that no reader looks at.
void writePlainNode(SceneWriter& w, std::mt19937& rng, int index)
{
    static const char* const networks[]
        = { "obj/geo", "obj/fx/sim", "mat/principled", "ch/motion" };
    const QByteArray node = QByteArray(networks[index % 4]) + QByteArray::number(index);
    std::uniform_real_distribution<double> coord(-50.0, 50.0);
    w.line(node + ".init {");
    w.line("type = geo");
    w.line("matchesdef = 0");
    w.line("}");
    w.line(node + ".def {");
    w.line("sopflags sopflags = ");
    w.line("comment \"\"");
    w.line("position " + number(coord(rng)) + " " + number(coord(rng)));
    w.line("connectornextid 0");
    w.line(
        "flags =  lock off model off template off footprint off xray off bypass off display on "
        "render on highlight off unload off savedata off compress on colordefault on exposed on");
    w.line("outputsNamed3");
    w.line("{");
    w.line("}");
    w.line("}");
    w.line(node + ".chn {");
    w.line("    channel tx {");
    w.line("      lefttype = extend");
    w.line("      default = 0");
    QByteArray keys = "      segment { length = 240 expr = cubic() } keys = [";
    for (int k = 0; k < 40; ++k)
        keys += " " + number(coord(rng));
    w.line(keys + " ]");
    w.line("    }");
    w.line("  }");
    w.line(node + ".parm {");
    w.line("version 0.8");
    w.line("stdswitcher3\t[ 0\tlocks=0 ]\t(\t0\t0\t0 )");
    w.line("xOrd\t[ 0\tlocks=0 ]\t(\t\"srt\" )");
    w.line("t\t[ 0\tlocks=0 ]\t(\t" + number(coord(rng)) + "\t" + number(coord(rng)) + "\t"
        + number(coord(rng)) + " )");
    w.line("use_dcolor\t[ 0\tlocks=0 ]\t(\t\"on\" )");
    w.line("file\t[ 0\tlocks=0 ]\t(\t\"$HIP/geo/cache_" + QByteArray::number(index)
        + ".$F4.bgeo.sc\" )");
    w.line("}");
    w.line(node + ".userdata {");
    w.line("    ___Version___");
    w.line("      :\t\"19.5.303\"");
    w.line("    ___toolcount___");
    w.line("}");
}

/// Point and attribute data written inline: the bulk of a large scene.
void writeNumericBlock(SceneWriter& w, std::mt19937& rng)
{
    std::uniform_real_distribution<double> value(-1000.0, 1000.0);
    std::uniform_int_distribution<int> count(4, 24);
    for (int l = 0; l < 100; ++l) {
        QByteArray text;
        const int n = count(rng);
        for (int i = 0; i < n; ++i) {
            text += number(value(rng));
            text += ' ';
        }
        w.line(text);
    }
}

void writeCamera(SceneWriter& w, int index)
{
    const QByteArray node = "obj/cam" + QByteArray::number(index);
    w.line(node + ".parm {");
    w.line("version 0.8");
    w.line("resx\t[ 0\tlocks=0 ]\t(\t1920 )");
    w.line("resy\t[ 0\tlocks=0 ]\t(\t1080 )");
    w.line("focal\t[ 0\tlocks=0 ]\t(\t50 )");
    w.line("}");
}

void writeRenderNode(SceneWriter& w, int index)
{
    static const char* const kinds[] = { "mantra", "Redshift_ROP", "arnold", "karma", "opengl" };
    const QByteArray node = QByteArray("out/") + kinds[index % 5] + QByteArray::number(index);
    w.line(node + ".parm {");
    w.line("version 0.8");
    w.line("execute\t[ 0\tlocks=0 ]\t(\t0 )");
    w.line("trange\t[ 0\tlocks=0 ]\t(\t\"normal\" )");
    w.line("f\t[ 0\tlocks=0 ]\t(\t[ f1\t1001 ] [ f2\t1240 ]\t1 )");
    w.line("camera\t[ 0\tlocks=0 ]\t(\t/obj/cam" + QByteArray::number(index % 20) + " )");
    w.line("vm_picture\t[ 0\tlocks=0 ]\t(\t\"$HIP/render/$HIPNAME.$OS.$F4.exr\"\t)");
    w.line("}");
}

} // namespace

bool writeBenchScene(const QString& path, qint64 targetBytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    SceneWriter w(file);
    std::mt19937 rng(1234);
    writeHeader(w);
    for (int c = 0; c < 20; ++c)
        writeCamera(w, c);

    // Spread the render nodes over the file: a few hundred whatever the size.
    constexpr int RenderNodes = 300;
    int renderNodes = 0;
    for (int index = 0; w.written() < targetBytes; ++index) {
        writePlainNode(w, rng, index);
        if (index % 16 == 0)
            writeNumericBlock(w, rng);
        const qint64 due = RenderNodes * w.written() / targetBytes;
        while (renderNodes < due)
            writeRenderNode(w, renderNodes++);
    }
    while (renderNodes < RenderNodes)
        writeRenderNode(w, renderNodes++);
    w.flush();
    return file.error() == QFile::NoError;
}
