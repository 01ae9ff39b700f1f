// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/plist/TextReader.h"
#include "base/plist/XmlReader.h"
#include "base/plist/XmlWriter.h"
#include "support/Files.h"
#include "support/Python.h"
#include "support/TestProgram.h"

#include <QRandomGenerator>
#include <QStringEncoder>
#include <QTimeZone>

#include <clocale>
#include <cmath>
#include <limits>

using namespace brinemark::plist;
using brinemark::test::row;

namespace
{

QByteArray fixture()
{
    return brinemark::test::bytesOf(QStringLiteral(BRINEMARK_TEST_DATA "/plist/everything.plist"));
}

QByteArray inPlist(const QByteArray &element)
{
    return "<plist version=\"1.0\">" + element + "</plist>";
}

QDateTime utc(int year, int month, int day, int hour, int minute, int second)
{
    return {QDate(year, month, day), QTime(hour, minute, second), Qt::UTC};
}

QByteArray everyByte()
{
    QByteArray bytes;
    for (int i = 0; i < 256; ++i)
        bytes.append(char(i));
    return bytes;
}

/// The value that tests/data/plist/make.py writes into everything.plist.
Value everything()
{
    return Value(Dict{
        {u"array"_qs, Array{1, u"two"_qs, 3.5, Array(), Dict()}},
        {u"blank"_qs, u"   "_qs},
        {u"bytes"_qs, everyByte()},
        {u"date"_qs, utc(2026, 2, 28, 23, 59, 58)},
        {u"dict"_qs,
         Dict{{u"inner"_qs, Dict{{u"deeper"_qs, QByteArray("\0\xff\x10", 3)}}}, {u"zwei & <drei>"_qs, u"ä"_qs}}},
        {u"empty"_qs, u""_qs},
        {u"emptyBytes"_qs, QByteArray("")},
        {u"entities"_qs, u"a & b < c > d \"e\" 'f' &amp;"_qs},
        {u"false"_qs, false},
        {u"integerMax"_qs, std::numeric_limits<qint64>::max()},
        {u"integerMin"_qs, std::numeric_limits<qint64>::min()},
        {u"lines"_qs, u"first\n\tsecond\n"_qs},
        {u"outside"_qs, u"fish \U0001F420, math \U0001D54F"_qs},
        {u"real"_qs, 0.1},
        {u"realLarge"_qs, std::numeric_limits<double>::max()},
        {u"realSmall"_qs, std::numeric_limits<double>::denorm_min()},
        {u"true"_qs, true},
        {u"umlaut"_qs, u"Größe 25 °C, 水槽"_qs},
    });
}

} // namespace

// Ordinary literals only: the meta-object compiler cannot read raw ones.
class PlistTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAndWritesWhatPythonWrote()
    {
        const QByteArray bytes = fixture();
        const QByteArray copy(bytes.constData(), bytes.size());
        const ReadResult result = readXml(bytes);
        QVERIFY2(result, qPrintable(result.error));
        QVERIFY(result.value == everything());
        QCOMPARE(bytes, copy); // the parser works in place, on a copy of its own
        QCOMPARE(writeXml(everything()), bytes);
    }

    void pythonReadsWhatWeWrite()
    {
        const Value root(Dict{{u"cr"_qs, u"a\rb\r\n"_qs},
                              {u"cut"_qs, QChar(0xdc00) + u"a\ufffe\uffff"_qs + QChar(0) + QChar(0xd83d)},
                              {u"cdata"_qs, u"]]><![CDATA[x]]>&amp;\u007f"_qs},
                              {u"data"_qs, everyByte()},
                              {u"date"_qs, utc(1999, 12, 31, 0, 0, 1)},
                              {u"deep"_qs, Array{Array{Array{Dict{{u"\U0001F420<&>"_qs, QByteArray("abc")}}}}}},
                              {u"dropped"_qs, u"a\u0001b\uFFFEc"_qs + QChar(0xd800) + u"d"_qs},
                              {u"empty"_qs, Array{Dict(), Array(), u""_qs, QByteArray("ab")}},
                              {u"numbers"_qs, Array{-7, 7.25, 1e300, true, false, std::numeric_limits<qint64>::min()}},
                              {u"unbounded"_qs, -std::numeric_limits<double>::infinity()}});
        const auto script = u"import datetime, json, plistlib, sys\n"
                            "def plain(v):\n"
                            "    return v.hex() if isinstance(v, bytes) else v.isoformat()\n"
                            "root = plistlib.loads(sys.stdin.buffer.read())\n"
                            "print(json.dumps(root, default=plain, sort_keys=True), end='')\n"_qs;
        const brinemark::test::PythonRun python = brinemark::test::runPython({u"-c"_qs, script}, writeXml(root));
        QCOMPARE(python.errors, QByteArray());
        QCOMPARE(
            python.output,
            QByteArray(
                "{\"cdata\": \"]]><![CDATA[x]]>&amp;\\u007f\", \"cr\": \"a\\rb\\r\\n\", \"cut\": \"a\", \"data\": \"" +
                everyByte().toHex() +
                "\", \"date\": \"1999-12-31T00:00:01\", \"deep\": [[[{\"\\ud83d\\udc20<&>\": \"616263\"}]]], "
                "\"dropped\": \"abcd\", \"empty\": [{}, [], \"\", \"6162\"], "
                "\"numbers\": [-7, 7.25, 1e+300, true, false, -9223372036854775808], "
                "\"unbounded\": -Infinity}"));
    }

    void numbersReadBackUnderAnyLocale()
    {
        const QByteArray before = setlocale(LC_ALL, nullptr);
        const auto restore = qScopeGuard([&before] { setlocale(LC_ALL, before.constData()); });
        using Limits = std::numeric_limits<double>;
        const Array numbers{7.25,          -1234567.875,         1.0 / 3.0,
                            Limits::max(), Limits::denorm_min(), -Limits::infinity(),
                            0.1 + 0.2,     qint64(-1),           1234567};
        for (const char *locale : {"C", "en_US.UTF-8", "de_DE.UTF-8"}) {
            QVERIFY2(setlocale(LC_ALL, locale), locale);
            const QByteArray xml = writeXml(Value(numbers));
            QVERIFY(xml.contains("<real>7.25</real>") && xml.contains("<integer>1234567</integer>"));
            const ReadResult result = readXml(xml);
            QVERIFY2(result, qPrintable(result.error));
            QVERIFY(result.value == Value(numbers));
        }
        const ReadResult nan = readXml(writeXml(Value(Limits::quiet_NaN())));
        QVERIFY(nan.value.real() && std::isnan(*nan.value.real()));
        const ReadResult zero = readXml(writeXml(Value(-0.0)));
        QVERIFY(zero.value.real() && std::signbit(*zero.value.real()));
    }

    void entriesThatCannotBeWrittenAreLeftOut()
    {
        QCOMPARE(writeXml(Value()), QByteArray());
        const Value root(
            Dict{{u"a"_qs, Value()}, {u"b"_qs, QDateTime()}, {u"c"_qs, Array{Value(), 1}}, {u"d"_qs, Array{Value()}}});
        QVERIFY(readXml(writeXml(root)).value == Value(Dict{{u"c"_qs, Array{1}}, {u"d"_qs, Array()}}));
        const QDateTime local(QDate(2026, 7, 1), QTime(14, 0), QTimeZone("Europe/Berlin"));
        QVERIFY(readXml(writeXml(Value(local))).value == Value(utc(2026, 7, 1, 12, 0, 0)));
    }

    void manyStringsStayApart()
    {
        Array array;
        for (int i = 0; i < 120000; ++i)
            array.push_back(Value(QString::number(i % 70000) + QString(i % 60, u'ä')));
        const Value root(std::move(array));
        QVERIFY(readXml(writeXml(root)).value == root);
    }

    void readsXml_data()
    {
        brinemark::test::columns<QByteArray, Value>("xml", "expected");
        const auto row = [](const char *xml, const Value &expected) { QTest::newRow(xml) << inPlist(xml) << expected; };
        row("<integer> +12\n</integer>", 12);
        row("<integer>-0x1F</integer>", -31);
        row("<integer>0x7fffffffffffffff</integer>", std::numeric_limits<qint64>::max());
        row("<real>7</real>", 7.0);
        row("<real> -1.5E+3 </real>", -1500.0);
        row("<real>+Infinity</real>", std::numeric_limits<double>::infinity());
        row("<false> </false>", false);
        row("<date>2024-02-29T00:00:00Z</date>", utc(2024, 2, 29, 0, 0, 0));
        row("<data> Y W\n\tJ\rj </data>", QByteArray("abc"));
        row("<data>YQ==</data>", QByteArray("a"));
        row("<data>YWI</data>", QByteArray("ab"));
        row("<string>   </string>", u"   "_qs);
        row("<string>  <!-- c -->  a<!-- c --> <?p i?> b </string>", u"    a  b "_qs);
        row("<string>a<!-- &bogus; <key> -->b</string>", u"ab"_qs);
        row("<string><![CDATA[<&amp;>]]> <![CDATA[]]>!?&lt;</string>", u"<&amp;> !?<"_qs);
        row("<string>&#65;&#x1F420;&quot;&apos;&#13;\r\n</string>", u"A\U0001F420\"'\r\n"_qs);
        row("<string lang=\"de\">ä</string>", u"ä"_qs);
        row("<!-- c --><array>\n<!-- c --> <true/><?p i?>\n<string> </string></array><!-- c -->", Array{true, u" "_qs});
        row("<dict> <!-- c --> <key>a<!-- c -->b</key> <!-- c --> <true/> </dict>", Dict{{u"ab"_qs, true}});
        row("<dict><key>b</key><true/><key>a</key><false/><key>b</key><string>last</string></dict>",
            Dict{{u"a"_qs, false}, {u"b"_qs, u"last"_qs}});
        row("<dict><key></key><dict/></dict>", Dict{{u""_qs, Dict()}});
        QTest::newRow("byte order mark")
            << "\xef\xbb\xbf<?xml version=\"1.0\"?><!DOCTYPE plist>\n<plist><true/></plist>\n"_qba << Value(true);
        QTest::newRow("comments around") << "<!-- a --><plist><true/></plist><!-- b -->\n<?p i?>"_qba << Value(true);
        QTest::newRow("document type with a subset")
            << "<!DOCTYPE plist [<!ELEMENT plist ANY>]><plist><true/></plist>"_qba << Value(true);
    }

    void readsXml()
    {
        const auto [xml, expected] = brinemark::test::fetch<QByteArray, Value>("xml", "expected");
        const ReadResult result = readXml(xml);
        QVERIFY2(result, qPrintable(result.error));
        QVERIFY(result.value == expected);
    }

    void refusesXml_data()
    {
        QTest::addColumn<QByteArray>("xml");
        for (const char *xml : {"", "hello", "{ a = b; }", "<plist/>", "<true/>", "<plist><true/><false/></plist>",
                                "<plist><true/></plist><plist><true/></plist>", "<plist><true/></plist>x",
                                "<plist><true/></plist>>", "<plist>x<true/></plist>", "<plist><true/>x</plist>",
                                "<Plist><true/></Plist>", "<?xml encoding=\"klingon\"?><plist><true/></plist>"})
            QTest::newRow(xml) << QByteArray(xml);
        const auto inside = [](const QByteArray &element) {
            QTest::newRow(element.left(200).constData()) << inPlist(element);
        };
        for (const char *integer : {"", " ", "1.5", "x", "1x", "1 2", "--1", "+-1", "0x", "0xg", "9223372036854775808",
                                    "-9223372036854775809", "0x8000000000000000", "99999999999999999999999"})
            inside("<integer>" + QByteArray(integer) + "</integer>");
        for (const char *real : {"", "x", "7,25", "1.5.2", "0x10", "1e", "nanx", "--1", "1 2", "1e999"})
            inside("<real>" + QByteArray(real) + "</real>");
        for (const char *date :
             {"", "2026-02-29T00:00:00Z", "2026-01-01T00:00:00", "2026-01-01 00:00:00Z", "2026-1-1T0:0:0Z",
              "2026-01-01T24:00:00Z", "2026-01-01T00:60:00Z", "2026-13-01T00:00:00Z", "x026-01-01T00:00:00Z",
              "2026-01-01T00:00:00Zx", "2026-01-01T00:00:00+01:00"})
            inside("<date>" + QByteArray(date) + "</date>");
        for (const char *data :
             {"Y", "YWJjY", "YW*j", "YQ=", "YQ===", "====", "=", "YQ==YQ==", "YWJj=", "YW-_", "YWJjä"})
            inside("<data>" + QByteArray(data) + "</data>");
        for (const char *text :
             {"a<b/>", "<string>a</string>", "a & b", "&bogus;", "&amp", "&#0;", "&#xd800;", "&#1;", "&#x110000;",
              "&#;", "&#99999999999;", "<!-- a ", "<![CDATA[a", "\xff", "\xc0\x80", "\xed\xa0\x80"})
            inside("<string>" + QByteArray(text) + "</string>");
        for (const char *entries :
             {"<true/>", "<key>a</key>", "<key>a</key><key>b</key><true/>", "<key>a</key><true/><false/>",
              "<string>a</string><true/>", "x<key>a</key><true/>", "<key>a</key>x<true/>",
              "<key>a</key><![CDATA[x]]><true/>", "<key><b/></key><true/>"})
            inside("<dict>" + QByteArray(entries) + "</dict>");
        for (const char *element :
             {"<true>x</true>", "<key>a</key>", "<null/>", "<String>a</String>", "<array><true/>x</array>",
              "<array><key>a</key></array>", "<array><string>a</array></string>", "<!-- \xff --><true/>", "<array",
              "<array></array", "< array/>", "<>", "</array>"})
            inside(element);
        inside(QByteArray("<string>a\0b</string>", 20));
    }

    void refusesXml()
    {
        QFETCH(QByteArray, xml);
        const ReadResult result = readXml(xml);
        QVERIFY(!result);
        QVERIFY(result.value.isNone());
    }

    void truncatedFilesAreRefused()
    {
        for (const QByteArray &bytes :
             {fixture(), "<?xml version=\"1.0\"?><!-- a --><plist><dict><!-- b --><key>a</key>"
                         "<string><![CDATA[b]]>&amp;</string></dict></plist> <!-- c -->"_qba}) {
            const Value whole = readXml(bytes).value;
            QVERIFY(!whole.isNone());
            const qsizetype end = bytes.lastIndexOf("</plist>") + 8;
            for (qsizetype size = 0; size < bytes.size(); ++size) {
                const ReadResult result = readXml(bytes.first(size));
                if (size < end)
                    QVERIFY2(!result, bytes.first(size));
                else if (result)
                    QVERIFY(result.value == whole);
            }
        }
    }

    void damagedFilesNeverHarm()
    {
        const QByteArray whole = fixture();
        QRandomGenerator random(20260101);
        const QByteArray spice = "<>/&;![]-?=\"\0\xff Aa1";
        for (int round = 0; round < 4000; ++round) {
            QByteArray bytes = whole;
            for (int i = random.bounded(1, 4); i > 0; --i) {
                const auto at = random.bounded(bytes.size());
                switch (random.bounded(3)) {
                case 0:
                    bytes[at] = spice.at(random.bounded(spice.size()));
                    break;
                case 1:
                    bytes.remove(at, random.bounded(1, 30));
                    break;
                default:
                    bytes.insert(at, bytes.mid(random.bounded(bytes.size()), random.bounded(1, 60)));
                }
            }
            // A readable file is the same after it is written and read again.
            if (const ReadResult result = readXml(bytes)) {
                const QByteArray written = writeXml(result.value);
                QCOMPARE(writeXml(readXml(written).value), written);
            }
            readText(bytes);
        }
    }

    void depthIsLimited_data()
    {
        brinemark::test::columns<QByteArray, bool, bool>("bytes", "text", "readable");
        const auto nested = [](const char *open, const char *close, int depth, const char *middle = "") {
            return QByteArray(open).repeated(depth) + middle + QByteArray(close).repeated(depth);
        };
        const auto arrays = [=](int depth) { return inPlist(nested("<array>", "</array>", depth)); };
        const auto dicts = [=](int depth) {
            return inPlist(nested("<dict><key>a</key>", "</dict>", depth, "<true/>"));
        };
        row("as deep as allowed", arrays(maximumDepth), false, true);
        row("dictionaries as deep as allowed", dicts(maximumDepth), false, true);
        row("one too deep", arrays(maximumDepth + 1), false, false);
        row("dictionaries far too deep", dicts(100000), false, false);
        row("deeper than the stack", arrays(500000), false, false);
        row("a key deeper than the stack",
            inPlist("<dict><key>" + nested("<x>", "</x>", 500000) + "</key><true/></dict>"), false, false);
        row("strings in strings", inPlist(nested("<string>", "</string>", 100000)), false, false);
        row("text, as deep as allowed", nested("(", ")", maximumDepth), true, true);
        row("text, one too deep", nested("(", ")", maximumDepth + 1), true, false);
        row("text, dictionaries far too deep", nested("{a=", ";}", 100000, "b"), true, false);
    }

    void depthIsLimited()
    {
        const auto [bytes, text, readable] =
            brinemark::test::fetch<QByteArray, bool, bool>("bytes", "text", "readable");
        const ReadResult result = text ? readText(bytes) : readXml(bytes);
        QVERIFY2(bool(result) == readable, qPrintable(result.error));
    }

    void readsText_data()
    {
        brinemark::test::columns<QByteArray, Value>("text", "expected");
        const auto row = [](const char *text, const Value &expected) {
            QTest::newRow(text) << QByteArray(text) << expected;
        };
        row("{ majorVersion = 1; minorVersion = \"5\"; }",
            Dict{{u"majorVersion"_qs, u"1"_qs}, {u"minorVersion"_qs, u"5"_qs}});
        row("{b=2;a=1;b=3;}", Dict{{u"a"_qs, u"1"_qs}, {u"b"_qs, u"3"_qs}});
        row("{}", Dict());
        row("()", Array());
        row("(a, (b), {c = d;}, <0fF0 1 2>,)",
            Array{u"a"_qs, Array{u"b"_qs}, Dict{{u"c"_qs, u"d"_qs}}, QByteArray("\x0f\xf0\x12")});
        row("<>", QByteArray());
        row(" plain_word.-$+:/x ", u"plain_word.-$+:/x"_qs);
        row("http://example.org/a", u"http://example.org/a"_qs);
        row("// note\n{ /* { */ a /**/ = // ;\n b; } // end", Dict{{u"a"_qs, u"b"_qs}});
        row("\"\"", u""_qs);
        row("'single \"quoted\"'", u"single \"quoted\""_qs);
        row("\"\\n\\t\\r\\\"\\\\\\'\\q\\a\\b\\f\\v\"", u"\n\t\r\"\\'q\a\b\f\v"_qs);
        row("\"\\U00e4\\Ud83D\\Udc20\\101\\3771\\0\"", QString(u"ä\U0001F420A\u00ff1"_qs) + QChar(0));
        row("\"// no comment /* { ; \"", u"// no comment /* { ; "_qs);
        row("\"Größe\nzwei\"", u"Größe\nzwei"_qs);
        row("{\"a b\" = (\"c\");}", Dict{{u"a b"_qs, Array{u"c"_qs}}});
        QStringEncoder utf16(QStringConverter::Utf16BE, QStringConverter::Flag::WriteBom);
        QTest::newRow("UTF-16") << QByteArray(utf16.encode(u"{ä"_qs.left(1) + u"\"ä\" = 1;}"_qs))
                                << Value(Dict{{u"ä"_qs, u"1"_qs}});
    }

    void readsText()
    {
        const auto [text, expected] = brinemark::test::fetch<QByteArray, Value>("text", "expected");
        const ReadResult result = readText(text);
        QVERIFY2(result, qPrintable(result.error));
        QVERIFY(result.value == expected);
    }

    void refusesText()
    {
        const QByteArray whole = "{\"a\\U0041\" = (b, <00 01>, {c = 'd';}); /* e */ }";
        QVERIFY(readText(whole));
        // Separated by "|".
        QList<QByteArray> texts =
            QByteArray("|  // only a comment|{a=b}|{a b;}|{=b;}|{a=;}|{a=b;};|{a=b;} c|{(a)=b;}|(a b)|(,)|(a,,b)|(a))|"
                       "<0>|<0g>|<00> <00>|'abc|\"\\U12\"|\"\\U12g4\"|\"\\400\"|/* open|/*/|{a = /* open; }|"
                       "\xc3\xa4|a b|@|\xff|\"\xc3\"")
                .split('|');
        for (qsizetype size = 0; size < whole.size(); ++size)
            texts.append(whole.first(size));
        for (const QByteArray &text : texts) {
            const ReadResult result = readText(text);
            QVERIFY2(!result && result.value.isNone(), text.constData());
        }
    }
};

BRINEMARK_TEST(QCoreApplication, PlistTest)
#include "tst_plist.moc"
