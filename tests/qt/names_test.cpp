#include "session.h"

#include <QAction>
#include <QTextDocumentFragment>

using namespace horvanta;

namespace {

/// As the toolkit shows it: a tooltip that looks like HTML is shown without its marks.
QString ShownTip(const QString& tip) {
    return Qt::mightBeRichText(tip) ? QTextDocumentFragment::fromHtml(tip).toPlainText() : tip;
}

}  // namespace

class NamesTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { settings_.emplace(); }

    /// Whatever the user calls a place, it is text in the menu, in titles and in tooltips.
    void areTextEverywhere_data() {
        QTest::addColumn<QString>("name");
        for (const char* name : {"<b>Home</b><img src='x'>", "Fish & Chips", "a [*] b", "%1 %n", "<!--", "&&"}) {
            QTest::newRow(name) << QString::fromUtf8(name);
        }
    }

    void areTextEverywhere() {
        QFETCH(QString, name);
        Session session;
        const LocaleRecord place = MakeLocale(name.toStdString(), "", 10, 20, 0);
        session.program.places.SetUserLocale(1, place);
        session.program.userLocales.form.visible = true;
        CloseNextInformation();
        session.program.places.UserLoc_Click(1);
        session.frame().Draw();
        const auto* copy = session.Find<QPushButton>("CopyLoc");
        QVERIFY2(ShownTip(copy->toolTip()).contains(name), qPrintable(copy->toolTip()));
        QVERIFY(copy->text().contains(QString(name).replace(u'&', QStringLiteral("&&"))));
        const QMdiSubWindow* time = session.Window(session.program.timeAstro.form);
        QVERIFY(!time->isWindowModified());
        QVERIFY(time->windowTitle().replace(QStringLiteral("[*][*]"), QStringLiteral("[*]")).contains(name));
        const auto actions = session.frame().findChildren<QAction*>();
        const QString caption = QString(name).replace(u'&', QStringLiteral("&&"));
        QVERIFY(std::any_of(actions.begin(), actions.end(), [&](QAction* a) { return a->text() == caption; }));
    }

    void ofAnyLengthLeaveTheWindowItsWidth() {
        Session session;
        session.program.userLocales.form.visible = true;
        session.frame().Draw();
        const QMdiSubWindow* window = session.Window(session.program.userLocales.form);
        Locale = MakeLocale(std::string(40, 'i'), "", 10, 20, 0);  // narrow, but elided
        session.program.userLocales.SetCopyLocToolText();
        session.frame().Draw();
        const int before = window->minimumSizeHint().width();
        Locale = MakeLocale(std::string(400, 'W'), "", 10, 20, 0);
        session.program.userLocales.SetCopyLocToolText();
        session.frame().Draw();
        QVERIFY(QRect(QPoint(), session.frame().size()).contains(QRect(QPoint(), window->size())));
        QVERIFY2(window->minimumSizeHint().width() < before * 2, qPrintable(QString::number(window->width())));
    }

  private:
    std::optional<SettingsFolder> settings_;
};

QTEST_MAIN(NamesTest)
#include "names_test.moc"
