// Command-line parsing: commands, options, environment root and usage errors.
#include "app/app_options.h"
#include "app/argument_encoding.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

OptionsResult parse(QStringList args, const QString& envRoot = {})
{
    args.prepend(QStringLiteral("tarvel"));
    return parseAppOptions(args, envRoot);
}

} // namespace

TEST(AppOptions, CommandsAndOptions)
{
    QTemporaryDir root;
    const OptionsResult plain = parse({});
    ASSERT_TRUE(plain.options);
    EXPECT_EQ(plain.options->command, AppOptions::Command::Run);
    EXPECT_EQ(plain.options->root, QStringLiteral("/"));

    const OptionsResult snap =
        parse({"--settings", "/tmp/x.plist", "snapshot", "--json", "--cycles", "3", "--root", root.path()});
    ASSERT_TRUE(snap.options);
    EXPECT_EQ(snap.options->command, AppOptions::Command::Snapshot);
    EXPECT_TRUE(snap.options->json);
    EXPECT_EQ(snap.options->cycles, 3);
    EXPECT_EQ(snap.options->root, root.path());
    EXPECT_EQ(snap.options->settingsFile, QStringLiteral("/tmp/x.plist"));

    // The environment root applies unless the option names another.
    EXPECT_EQ(parse({"snapshot"}, root.path()).options->root, root.path());
    EXPECT_EQ(parse({"snapshot", "--root", "/"}, root.path()).options->root, QStringLiteral("/"));

    const OptionsResult render = parse({"render", "--out", "/tmp/pics", "--cycles", "1", "--scale", "1.5"});
    ASSERT_TRUE(render.options);
    EXPECT_EQ(render.options->command, AppOptions::Command::Render);
    EXPECT_EQ(render.options->outDir, QStringLiteral("/tmp/pics"));
    EXPECT_EQ(render.options->scale, 1.5);
    EXPECT_EQ(render.options->cycles, 1);
    EXPECT_TRUE(parse({"--bar"}).options->bar);
    // The module after --preferences names the tab; without one the top tab opens.
    EXPECT_EQ(parse({"--preferences", "cpu", "--bar"}).options->preferencesTab, 1);
    EXPECT_EQ(parse({"--preferences"}).options->preferencesTab, 0);
    EXPECT_FALSE(parse({}).options->preferencesTab);

    const OptionsResult serve = parse({"serve", "--listen", "[::1]:0", "--root", root.path()});
    ASSERT_TRUE(serve.options);
    EXPECT_EQ(serve.options->command, AppOptions::Command::Serve);
    EXPECT_EQ(serve.options->listen, QStringLiteral("[::1]:0"));
    EXPECT_TRUE(parse({"serve"}).options->listen.isEmpty());

    const OptionsResult help = parse({"--help"});
    EXPECT_FALSE(help.options);
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_TRUE(help.message.contains(QStringLiteral("Usage:")));
}

TEST(AppOptions, BadArgumentsSayWhatIsWrongAndGiveStatusTwo)
{
    const QList<QStringList> bad = {
        {"--bogus"},
        {"frobnicate"},
        {"snapshot", "extra"},
        {"snapshot", "--preferences"},
        {"--preferences", "Toaster"},
        {"snapshot", "--cycles", "0"},
        {"snapshot", "--cycles", "two"},
        {"snapshot", "--cycles"},
        {"--json"},
        {"snapshot", "--root", "/no/such/folder"},
        {"--settings", ""},
        {"render"},
        {"render", "--out", "/tmp/pics", "--scale", "0"},
        {"render", "--out", "/tmp/pics", "--scale", "nan"},
        {"render", "--out", "/tmp/pics", "--json"},
        {"snapshot", "--out", "/tmp/pics"},
        {"snapshot", "--bar"},
        {"--service", "http://127.0.0.1/"},
        {"snapshot", "--service", "http://127.0.0.1/"},
        {"global-address", "--service", ""},
        {"global-address", "--service"},
        {"global-address", "--json"},
        {"global-address", "--bar"},
        {"snapshot", "--listen", "127.0.0.1:9772"},
        {"serve", "--listen", "127.0.0.1"},
        {"serve", "--listen", "127.0.0.1:65536"},
        {"serve", "--listen", "::1:9772"},
        {"serve", "--listen", "example.org:9772"},
        {"serve", "--json"},
    };
    for (const QStringList& args : bad) {
        const OptionsResult r = parse(args);
        EXPECT_FALSE(r.options) << args.join(' ').toStdString();
        EXPECT_EQ(r.exitCode, 2) << args.join(' ').toStdString();
        EXPECT_TRUE(r.message.startsWith(QStringLiteral("tarvel: "))) << r.message.toStdString();
        EXPECT_TRUE(r.message.endsWith(QStringLiteral("\nTry 'tarvel --help'.\n"))) << r.message.toStdString();
        EXPECT_EQ(r.message.count(QLatin1Char('\n')), 2) << r.message.toStdString();
    }
}

TEST(AppOptions, MistakesAreNamedAsTyped)
{
    const auto firstLine = [](const QStringList& args) { return parse(args).message.section(QLatin1Char('\n'), 0, 0); };
    EXPECT_EQ(firstLine({"--bogus"}), QStringLiteral("tarvel: unknown option '--bogus'"));
    EXPECT_EQ(firstLine({"snapshot", "-x"}), QStringLiteral("tarvel: unknown option '-x'"));
    EXPECT_EQ(firstLine({"--preferences", "Bogus"}),
              QStringLiteral("tarvel: no module named 'Bogus' (General, CPU, Memory, Network, Disk, Volume, Temp, "
                             "Fan, VNC)"));
    EXPECT_EQ(firstLine({"frobnicate"}), QStringLiteral("tarvel: unknown command 'frobnicate'"));
}

TEST(AppOptions, GlobalAddressTakesServicesInOrder)
{
    const OptionsResult plain = parse({"global-address"});
    ASSERT_TRUE(plain.options);
    EXPECT_EQ(plain.options->command, AppOptions::Command::GlobalAddress);
    EXPECT_TRUE(plain.options->services.isEmpty());

    const OptionsResult two = parse({"global-address", "--service", "http://127.0.0.1:1/b", "--settings",
                                     "/tmp/x.plist", "--service", "https://127.0.0.1:2/a"});
    ASSERT_TRUE(two.options);
    EXPECT_EQ(two.options->services, QStringList({"http://127.0.0.1:1/b", "https://127.0.0.1:2/a"}));
    EXPECT_EQ(two.options->settingsFile, QStringLiteral("/tmp/x.plist"));
    EXPECT_TRUE(parse({"--help"}).message.contains(QStringLiteral("global-address [--service URL]")));
}

TEST(AppOptions, APathThatIsNotUtf8IsNamedBeforeItCanBeMangled)
{
    const char* sound[] = {"tarvel", "--root", "/tmp/Ärger", "snapshot"};
    EXPECT_EQ(firstNonUtf8Argument(4, sound), std::nullopt);
    // Latin-1 "Ä", and a sequence cut short at the end of the argument.
    const char* latin1[] = {"tarvel", "--settings", "/tmp/\xC4rger.plist"};
    EXPECT_EQ(firstNonUtf8Argument(3, latin1), 2);
    const char* cut[] = {"tarvel", "render", "--out", "/tmp/\xE3\x81"};
    EXPECT_EQ(firstNonUtf8Argument(4, cut), 3);
}
