#include "ui/SettingsDialog.h"
#include "ScratchSettings.h"
#include "app/settings/SettingsController.h"
#include "integration/ISystemIntegration.h"
#include "support/Files.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPromise>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <map>
#include <memory>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

/// A system with a companion service that answers what it is told to, when it is told to.
class ScriptedIntegration : public ISystemIntegration {
public:
    QString startAtLogonText() const override { return u"Start with this system"_s; }
    QString startAtLogonToolTip() const override { return {}; }
    bool hasService() const override { return m_hasService; }
    QFuture<bool> startsAtLogon() override { return answer(m_startsAtLogon); }
    QFuture<bool> isServiceInstalled() override { return answer(m_serviceInstalled); }
    QFuture<bool> apply(const IntegrationChoice& choice) override {
        m_applied.push_back(choice);
        if (m_onApply) {
            m_onApply();
        }
        return answer(m_permits);
    }

    /// Gives the answers that are due.
    void answerAll() {
        for (auto& [promise, value] : std::exchange(m_pending, {})) {
            promise.addResult(value);
            promise.finish();
        }
    }

    bool m_hasService = true;
    bool m_startsAtLogon = false;
    bool m_serviceInstalled = false;
    bool m_permits = true;
    bool m_answersAtOnce = true;
    std::function<void()> m_onApply;
    std::vector<IntegrationChoice> m_applied;

private:
    QFuture<bool> answer(bool value) {
        if (m_answersAtOnce) {
            return QtFuture::makeReadyFuture(value);
        }
        auto& promise = m_pending.emplace_back(QPromise<bool>(), value).first;
        promise.start();
        return promise.future();
    }

    std::vector<std::pair<QPromise<bool>, bool>> m_pending;
};

class SettingsDialogTest : public testing::Test {
protected:
    /// A dialog with what the store and the system hold now. Few cases need it on the screen.
    void open() {
        m_dialog = std::make_unique<SettingsDialog>(&m_settings, &m_system, m_monitors);
        m_changed = std::make_unique<QSignalSpy>(m_dialog.get(), &SettingsDialog::settingsChanged);
    }

    template <typename Widget>
    Widget* widget(const char* objectName) const {
        return m_dialog->findChild<Widget*>(QLatin1String(objectName));
    }
    QCheckBox* box(const char* objectName) const { return widget<QCheckBox>(objectName); }
    QComboBox* combo(const char* objectName) const { return widget<QComboBox>(objectName); }
    bool isEnabled(const char* name) const { return widget<QWidget>(name)->isEnabled(); }

    void click(const char* button) const {
        QTest::mouseClick(widget<QPushButton>(button), Qt::LeftButton);
    }

    /// "title|text" of the box on the screen, closing it.
    QString takeBox() const {
        auto* const shown = m_dialog->findChild<QMessageBox*>();
        if (shown == nullptr) {
            return {};
        }
        const QString content = shown->windowTitle() + u'|' + shown->text();
        QTest::keyClick(shown, Qt::Key_Return);
        QCoreApplication::sendPostedEvents(shown, QEvent::DeferredDelete);
        return content;
    }

    /// Everything in the store.
    std::map<QString, QString> stored() const {
        std::map<QString, QString> values;
        for (const QString& key : m_raw.allKeys()) {
            values[key] = m_raw.value(key).toString();
        }
        return values;
    }

    const test::ScratchSettings m_place;
    SettingsController m_settings;
    QSettings m_raw{QSettings::NativeFormat, QSettings::UserScope, u"Corvane"_s,
                    u"CorvaneClient"_s};
    ScriptedIntegration m_system;
    std::vector<MonitorInfo> m_monitors = {
        {.index = 0, .name = "eDP-1", .width = 1920, .height = 1080, .primary = true},
        {.index = 1, .name = "Größe %1", .width = 800, .height = 600}};
    std::unique_ptr<SettingsDialog> m_dialog;
    std::unique_ptr<QSignalSpy> m_changed;
};

QString shownValue(const QWidget* input) {
    const char* const property = input->inherits("QComboBox")  ? "currentData"
                                 : input->inherits("QSpinBox") ? "value"
                                                               : "checked";
    return input->property(property).toString();
}

/// The values that can be chosen, in the words of the documentation.
QString offeredValues(const QWidget* input) {
    if (const auto* const box = qobject_cast<const QComboBox*>(input)) {
        QStringList values;
        for (int i = 0; i < box->count(); ++i) {
            values << box->itemData(i).toString();
        }
        values.removeAll(QString());
        return values.join(u", ");
    }
    if (const auto* const box = qobject_cast<const QSpinBox*>(input)) {
        return u"%1 to %2"_s.arg(box->minimum()).arg(box->maximum());
    }
    return u"true, false"_s;
}

/// The inputs of a dialog by what is written beside them.
std::map<QString, QWidget*> inputsOf(const QWidget* dialog) {
    std::map<QString, QWidget*> inputs;
    for (const auto* const form : dialog->findChildren<QFormLayout*>()) {
        for (int row = 0; row < form->rowCount(); ++row) {
            QWidget* const field = form->itemAt(row, QFormLayout::FieldRole)->widget();
            const auto* const label = qobject_cast<QLabel*>(form->labelForField(field));
            const auto* const box = qobject_cast<QCheckBox*>(field);
            inputs[label != nullptr ? label->text().chopped(1) : box->text()] = field;
        }
    }
    return inputs;
}

/// One row of the documented table of stored values, of those that have an input.
struct DocumentedSetting {
    QString key, values, defaultValue, label;
};

std::vector<DocumentedSetting> readDocumentation() {
    const QString text = QString::fromUtf8(test::contentOf(u":/docs/settings.md"_s));
    std::vector<DocumentedSetting> settings;
    for (const QString& line : QString(text).remove(u'`').split(u'\n')) {
        const QStringList cells = line.split(u'|');
        if (cells.size() == 7 && cells[1].contains(u'/') && !cells[4].trimmed().isEmpty()) {
            const QString value = cells[3].trimmed();
            settings.push_back({cells[1].trimmed(), cells[2].trimmed(),
                                value == u"empty" ? QString() : value, cells[4].trimmed()});
        }
    }
    return settings;
}

/// Chooses another value, with the keyboard.
void change(QWidget* input) {
    const auto* const choice = qobject_cast<QComboBox*>(input);
    const bool isAtFirst = choice != nullptr && choice->currentIndex() == 0;
    QTest::keyClick(input, input->inherits("QCheckBox") ? Qt::Key_Space
                           : isAtFirst                  ? Qt::Key_Down
                                                        : Qt::Key_Up);
}

TEST_F(SettingsDialogTest, StoreDialogAndDocumentationAgree) {
    open();
    const auto inputs = inputsOf(m_dialog.get());
    const auto documented = readDocumentation();
    click("applyButton"); // stores what it shows, but no language that is the same
    std::map<QString, QString> expected;
    for (const auto& setting : documented) {
        if (!setting.defaultValue.isEmpty()) {
            expected[setting.key] = setting.defaultValue;
        }
    }
    EXPECT_EQ(stored(), expected);

    for (const auto& setting : documented) {
        SCOPED_TRACE(setting.key.toStdString());
        ASSERT_TRUE(inputs.contains(setting.label)) << setting.label.toStdString();
        QWidget* const input = inputs.at(setting.label);
        EXPECT_EQ(shownValue(input), setting.defaultValue);
        if (input != combo("monitorCombo")) { // as many as there are
            EXPECT_EQ(offeredValues(input).toStdString(), setting.values.toStdString());
        }
        change(input);
        expected[setting.key] = shownValue(input);
        EXPECT_NE(expected[setting.key], setting.defaultValue);
        click("applyButton");
        takeBox();
        EXPECT_EQ(stored(), expected);
        EXPECT_EQ(isEnabled("reconnectAttemptsSpin"), input != box("autoReconnectCheck"));
        if (input == box("autoReconnectCheck")) {
            change(input);
            expected[setting.key] = setting.defaultValue;
        }
    }
    EXPECT_EQ(inputs.size(), documented.size() + 2) << "and the two of the system";
}

TEST_F(SettingsDialogTest, OddValuesShowAsDefaults) {
    const std::tuple<QString, QVariant, const char*, QString> cases[] = {
        {u"general/language"_s, u"CS"_s, "languageCombo", u"cs"_s},
        {u"general/language"_s, u"c"_s, "languageCombo", u""_s},
        {u"display/mode"_s, -1, "displayModeCombo", u"1"_s},
        {u"display/monitorIndex"_s, 2, "monitorCombo", u"0"_s},
        {u"network/maxReconnectAttempts"_s, 31, "reconnectAttemptsSpin", u"10"_s},
        {u"network/maxReconnectAttempts"_s, u"many"_s, "reconnectAttemptsSpin", u"10"_s},
    };
    for (const auto& [key, value, input, shown] : cases) {
        m_raw.setValue(key, value);
        open();
        EXPECT_EQ(shownValue(widget<QWidget>(input)), shown)
            << key.toStdString() << ' ' << value.toString().toStdString();
        m_raw.remove(key);
    }
}

TEST_F(SettingsDialogTest, NamesTheMonitors) {
    open();
    EXPECT_EQ(combo("monitorCombo")->itemText(0), u"Monitor 1: eDP-1 (1920x1080, Primary)"_s);
    EXPECT_EQ(combo("monitorCombo")->itemText(1), u"Monitor 2: Größe %1 (800x600)"_s);
    m_monitors.clear();
    m_settings.setMonitorIndex(3);
    open();
    click("applyButton");
    EXPECT_EQ(m_settings.monitorIndex(), 0);
}

TEST_F(SettingsDialogTest, WaitsForWhatTheSystemSays) {
    m_system.m_answersAtOnce = false;
    m_system.m_startsAtLogon = true;
    const auto areEnabled = [this](bool enabled) {
        for (const char* name : {"startAtLogonCheck", "serviceCheck", "okButton", "applyButton"}) {
            EXPECT_EQ(isEnabled(name), enabled) << name;
        }
        EXPECT_EQ(widget<QLabel>("progressLabel")->text().isEmpty(), enabled);
    };
    open();
    areEnabled(false);
    m_dialog->applySettings(); // would take away what is installed
    EXPECT_TRUE(m_system.m_applied.empty());
    m_dialog.reset(); // before the answer
    m_system.answerAll();

    open();
    m_system.answerAll();
    EXPECT_TRUE(QTest::qWaitFor([this] { return isEnabled("okButton"); }));
    areEnabled(true);
    EXPECT_TRUE(box("startAtLogonCheck")->isChecked());
    EXPECT_FALSE(box("serviceCheck")->isChecked());
}

TEST_F(SettingsDialogTest, AppliesInOrderAndStaysUntilDone) {
    m_system.m_serviceInstalled = true;
    open();
    m_dialog->show();
    m_system.m_answersAtOnce = false;
    m_system.m_onApply = [this] {
        EXPECT_EQ(m_settings.displayMode(), 0);
        EXPECT_TRUE(m_settings.minimizeToTray());
    };
    for (const char* name : {"languageCombo", "displayModeCombo", "minimizeToTrayCheck",
                             "startAtLogonCheck", "serviceCheck"}) {
        change(widget<QWidget>(name));
    }
    click("okButton");
    EXPECT_EQ(m_settings.language(), u"cs"_s);
    EXPECT_EQ(m_settings.displayMode(), 1) << "before the user has read the notice";
    EXPECT_EQ(takeBox(), u"Language Changed|Please restart the application to apply the new "
                         u"language."_s);
    ASSERT_EQ(m_system.m_applied.size(), 1U);
    EXPECT_TRUE(m_system.m_applied[0].startAtLogon);
    EXPECT_FALSE(m_system.m_applied[0].runService);

    EXPECT_FALSE(isEnabled("settingsTabs"));
    QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    m_dialog->applySettings();
    EXPECT_EQ(m_system.m_applied.size(), 1U);
    EXPECT_TRUE(m_dialog->isVisible());
    EXPECT_TRUE(m_changed->isEmpty());

    m_system.answerAll();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_dialog->isVisible(); }));
    EXPECT_FALSE(m_settings.minimizeToTray());
    EXPECT_EQ(m_changed->size(), 1);
}

TEST_F(SettingsDialogTest, EveryApplyAsksTheSystemAndCancelNothing) {
    open();
    m_dialog->show();
    click("applyButton");
    click("applyButton");
    EXPECT_EQ(takeBox(), QString()) << "the language is the same";
    EXPECT_TRUE(m_dialog->isVisible());

    const auto before = stored();
    change(combo("displayModeCombo"));
    click("cancelButton");
    EXPECT_FALSE(m_dialog->isVisible());
    EXPECT_EQ(stored(), before);
    EXPECT_EQ(m_system.m_applied.size(), 2U);
}

TEST_F(SettingsDialogTest, ARefusalReturnsTheBoxToWhatIsInstalled) {
    m_system.m_permits = false;
    for (const bool hasService : {true, false}) {
        m_system.m_hasService = hasService;
        const char* const refused = hasService ? "serviceCheck" : "startAtLogonCheck";
        for (const bool installed : {false, true}) {
            m_system.m_serviceInstalled = m_system.m_startsAtLogon = installed;
            open();
            EXPECT_EQ(box("serviceCheck")->isHidden(), !hasService);
            change(box(refused));
            change(box("minimizeToTrayCheck"));
            const bool minimize = box("minimizeToTrayCheck")->isChecked();
            click("applyButton");
            EXPECT_EQ(box(refused)->isChecked(), installed) << refused;
            EXPECT_EQ(m_settings.minimizeToTray(), minimize);
            EXPECT_EQ(m_changed->size(), 1);
        }
    }
}

TEST_F(SettingsDialogTest, TheServiceTakesOver) {
    /// Like a main window that hides in the tray.
    class StayingWindow : public QWidget {
        void closeEvent(QCloseEvent* event) override { event->ignore(); }
    } window;
    window.show();
    open();
    m_dialog->show();
    change(box("serviceCheck"));
    change(box("minimizeToTrayCheck"));
    QTimer::singleShot(0, m_dialog.get(), [this] {
        click("okButton");
        EXPECT_FALSE(m_dialog->isVisible());
    });
    QTimer::singleShot(5000, m_dialog.get(), [] { QCoreApplication::exit(1); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_TRUE(m_settings.minimizeToTray());
    EXPECT_TRUE(m_changed->isEmpty());
}

} // namespace
} // namespace corvane
