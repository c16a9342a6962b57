#include "Storm.h"

#include <Platform/BasicUIComponents/KvMessageNotify.h>
#include <Platform/BasicUIComponents/KvSkin.h>
#include <UI/FormInputs/CTipLabel.h>

#include <QAbstractAnimation>
#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QDropEvent>
#include <QFileDialog>
#include <QFrame>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QPalette>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest/qtestspontaneevent.h>

namespace Storms {

namespace {

QByteArray& Steps()
{
    static QByteArray steps;
    return steps;
}

/// Makes every text twice as long.
class LongLanguage : public QTranslator
{
public:
    using QTranslator::QTranslator;
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return QString::fromUtf8(text).repeated(2);
    }
};

/// Any signal of any object, which moc alone knows by number.
class AnySlot : public QObject
{
public:
    AnySlot(Storm& storm, QObject* sender, const QMetaMethod& signal)
        : QObject(sender)
        , m_storm(storm)
        , m_signal(signal)
    {
        const int slot = QObject::staticMetaObject.methodCount();
        QMetaObject::connect(sender, signal.methodIndex(), this, slot, Qt::DirectConnection);
    }

    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override
    {
        id = QObject::qt_metacall(call, id, arguments);
        if (call == QMetaObject::InvokeMetaMethod && id == 0)
            m_storm.InSlot(parent(), m_signal, arguments); // this may be gone now
        return id;
    }

private:
    Storm& m_storm;
    const QMetaMethod m_signal;
};

bool IsOfTheLibrary(const QMetaObject* metaObject)
{
    const QByteArray name = metaObject->className();
    return name.startsWith("UICommonMdl::") || name.startsWith("KvGUI::");
}

/// Scroll bars are set by Qt in the middle of a layout, which bears no other event loop.
bool IsPartOfScrollArea(const QWidget& widget)
{
    const QWidget* parent = widget.parentWidget();
    return qobject_cast<const QScrollBar*>(&widget) != nullptr && parent != nullptr
        && qobject_cast<const QAbstractScrollArea*>(parent->parentWidget()) != nullptr;
}

/// Whether a client can know the signal: one of a private class is for the library alone.
bool IsPublic(const QMetaMethod& signal)
{
    const QMetaObject* owner = signal.enclosingMetaObject();
    return !IsOfTheLibrary(owner) || Storms::KindNamed(owner->className()) != nullptr;
}

/// Whether Qt itself bears that a slot of this signal deletes the sender; most of its classes do not.
bool MayDeleteIn(const QMetaMethod& signal)
{
    return IsOfTheLibrary(signal.enclosingMetaObject())
        || (signal.enclosingMetaObject() == &QAbstractButton::staticMetaObject && signal.name() == "clicked");
}

/// Whether the widget's window has left the focus chain, as it does early in its destructor: Qt crashes when
/// a slot of the focus that goes then makes a child of anything in that window.
bool IsInDyingWindow(const QWidget& widget) { return widget.window()->nextInFocusChain() == nullptr; }

QFont FontOfSize(int points)
{
    QFont font;
    font.setPointSize(points);
    return font;
}

bool IsForeign(const QWidget* widget) { return qobject_cast<QFileDialog*>(widget->window()) != nullptr; }

/// Whether no window system gives the widget's window any input.
bool IsOutOfReach(const QWidget* widget)
{
    const QWindow* window = widget->window()->windowHandle();
    return window != nullptr && window->flags().testFlag(Qt::WindowTransparentForInput);
}

} // namespace

Storm::Storm(const Kind& kind, int seed)
    : m_kind(kind)
    , m_dice(seed)
{
    Steps().clear();
    Serve();
}

Storm::~Storm()
{
    m_deleting = true;
    if (m_subject && !m_subject->parent())
        delete m_subject;
    delete m_window;
    delete m_language;
    UICommonMdl::CTipLabel::Instance()->HideTip();
    KvGUI::KvMessageNotify::Instance()->CloseAll();
    KvGUI::SetSkinVersion(QStringLiteral("Black"));
    qApp->setFont(QFont());
    qApp->setPalette(QPalette());
    qApp->setLayoutDirection(Qt::LeftToRight);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

const QByteArray& Storm::Log() { return Steps(); }

void Storm::NoteFault(const QString& fault)
{
    if (m_fault.isEmpty())
        m_fault = fault;
}

void Storm::Note(const char* what, const QObject* object)
{
    Steps() += QByteArray(2 * (m_slotDepth + m_servedLoop), ' ') + what;
    if (object != nullptr)
        Steps() += QByteArray(" ") + object->metaObject()->className() + ' ' + object->objectName().toUtf8();
    Steps() += '\n';
}

QString Storm::Step()
{
    MakeStage();
    Attach();
    Act();
    // As the application's own loop does between two events; left over, a modal loop would do it.
    if (QThread::currentThread()->loopLevel() == 0 || m_dice.OneIn(4))
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    if (m_subject && m_subject->width() < 2000 && m_dice.OneIn(20))
        m_subject->grab();
    if (m_fault.isEmpty() && m_subject && m_kind.fault)
        NoteFault(m_kind.fault(*m_subject, m_held != Qt::NoButton));
    return m_fault;
}

void Storm::MakeStage()
{
    if (!m_window) {
        m_window = new QWidget;
        m_window->resize(1000, 700);
        (new QWidget(m_window))->setFocusPolicy(Qt::StrongFocus);
    }
    if (!m_container) {
        m_container = new QWidget(m_window);
        m_container->resize(900, 650);
    }
    m_window->show();
    m_container->show();
    if (m_subject)
        return;
    m_held = Qt::NoButton;
    Note("make", m_container);
    m_subject = m_kind.make(m_dice.OneIn(4) ? nullptr : m_container.data());
    m_subject->resize(QSize(200, 100) + m_dice.Size() / 2);
    m_subject->show();
}

void Storm::Attach()
{
    if (!m_subject)
        return;
    QWidgetList widgets = m_subject->findChildren<QWidget*>();
    widgets.append(m_subject);
    for (QWidget* widget : qAsConst(widgets)) {
        if (widget->property("stormy").toBool() || IsPartOfScrollArea(*widget))
            continue;
        widget->setProperty("stormy", true);
        const QMetaObject* metaObject = widget->metaObject();
        for (int i = QObject::staticMetaObject.methodCount(); i < metaObject->methodCount(); ++i) {
            const QMetaMethod method = metaObject->method(i);
            if (method.methodType() == QMetaMethod::Signal && IsPublic(method))
                new AnySlot(*this, widget, method);
        }
    }
}

// ---- Inside signals and modal loops

void Storm::InSlot(QObject* sender, const QMetaMethod& signal, void** arguments)
{
    const bool isWhole = m_subject && m_subject->metaObject()->className() == m_kind.className;
    if (m_deleting || !isWhole || IsInDyingWindow(*m_subject)) // signals of a widget in its destructor
        return;
    if (sender == m_subject && m_kind.isRight && !m_kind.isRight(*m_subject, signal, arguments))
        NoteFault(QStringLiteral("signal ") + QString::fromLatin1(signal.methodSignature()));
    // Qt's menus do not bear to be changed in their signals.
    if (m_slotDepth == 3 || !m_dice.OneIn(4) || qobject_cast<QMenu*>(sender) != nullptr)
        return;
    const QScopedValueRollback<int> depth(m_slotDepth, m_slotDepth + 1);
    // Also what happens in slots in this one: Qt must come back to a sender that is there.
    const QScopedValueRollback<int> kept(m_keptSinceLoop, KeptSince(!MayDeleteIn(signal)));
    Note(signal.methodSignature(), sender);
    if (m_dice.OneIn(10))
        Delete(true);
    else
        Call();
}

/// The loop since which nobody may delete a widget, when from here on nobody may.
int Storm::KeptSince(bool keeps) const
{
    return m_keptSinceLoop < 0 && keeps ? QThread::currentThread()->loopLevel() : m_keptSinceLoop;
}

/// Goes on inside every modal loop that a step opens, and ends the loop some time.
void Storm::Serve()
{
    QTimer::singleShot(1, this, [this] {
        Serve();
        const int level = QThread::currentThread()->loopLevel();
        if (level <= m_servedLoop)
            return;
        const QScopedValueRollback<int> served(m_servedLoop, level);
        if (++m_modalSteps > 1000)
            qFatal("a modal loop that does not end");
        level > 3 || m_dice.OneIn(8) ? CloseTopmost() : void(Step());
    });
}

void Storm::CloseTopmost()
{
    QWidget* topmost = QApplication::activePopupWidget();
    if (topmost == nullptr)
        topmost = QApplication::activeModalWidget();
    Note("close", topmost);
    if (auto* dialog = qobject_cast<QDialog*>(topmost))
        dialog->done(m_dice.Below(2));
    else if (topmost != nullptr)
        topmost->close();
}

// ---- Steps

/// Takes one of the actions, and notes it.
void Storm::Do(const QObject* object, std::initializer_list<NamedAction> actions)
{
    const NamedAction& action = actions.begin()[m_dice.Below(int(actions.size()))];
    Note(action.name, object);
    action.act();
}

void Storm::Act()
{
    if (QThread::currentThread()->loopLevel() == 0)
        m_modalSteps = 0;
    const int way = m_dice.Below(20);
    if (way < 7)
        Mouse();
    else if (way < 12)
        OtherInput();
    else if (way < 17)
        Call();
    else if (way == 17)
        ChangeWidget();
    else if (way == 18)
        m_dice.OneIn(3) ? ChangeSurroundings() : PassTime();
    else if (m_dice.OneIn(10))
        Delete(m_dice.OneIn(2));
}

QWidget* Storm::AnyWidget()
{
    const QWidgetList tops = QApplication::topLevelWidgets();
    QWidget* root = m_dice.OneIn(4) || !m_subject ? tops.at(m_dice.Below(tops.size())) : m_subject.data();
    const QWidgetList widgets = root->findChildren<QWidget*>();
    QWidget* widget = widgets.value(m_dice.Below(widgets.size() + 1), root);
    const bool isReached = widget->isVisible() && !IsForeign(widget) && !IsOutOfReach(widget);
    return isReached ? widget : m_window.data();
}

/// As the window system sends it: Qt finds the widget, and keeps to it while a button is held.
void Storm::Send(QEvent::Type type, Qt::MouseButton button)
{
    if (!m_pressWindow)
        return;
    static int time = 0;
    const Qt::KeyboardModifiers keys = m_dice.OneIn(4) ? Qt::ShiftModifier : Qt::NoModifier;
    const QPoint pos = m_pressWindow->mapFromGlobal(m_pointer);
    const bool isMenuPress = button == Qt::RightButton; // after which Qt uses the widget and its window again
    const QScopedValueRollback<bool> fragile(m_fragile, m_fragile || isMenuPress);
    const QScopedValueRollback<int> kept(m_keptSinceLoop, KeptSince(isMenuPress));
    qt_handleMouseEvent(m_pressWindow, pos, m_pointer, m_held, button, type, keys, ++time);
    QCoreApplication::processEvents();
}

/// A press, or with a button held: a move, or its release, which may begin a double-click.
void Storm::Mouse()
{
    if (m_held == Qt::NoButton || !m_pressWindow)
        return Press();
    if (!m_dice.OneIn(3)) {
        Note("move");
        const QPoint step(m_dice.Below(9) - 4, m_dice.Below(9) - 4);
        m_pointer = m_dice.OneIn(2) || !m_subject
            ? m_pointer + step
            : m_subject->mapToGlobal(m_dice.PointIn(m_subject->size() * 1.5) - QPoint(90, 90));
        return Send(QEvent::MouseMove, Qt::NoButton);
    }
    Note("release");
    const Qt::MouseButton button = std::exchange(m_held, Qt::NoButton);
    Send(QEvent::MouseButtonRelease, button);
    if (!m_dice.OneIn(4))
        return;
    Note("press again");
    m_held = button;
    Send(QEvent::MouseButtonPress, button);
}

void Storm::Press()
{
    // As an application's own loop does before; a menu's loop would do it in the middle of the press.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (!m_window)
        return;
    const bool onSpot = m_kind.spot && m_subject && m_subject->isVisible() && m_dice.OneIn(2);
    QWidget* widget = onSpot ? m_subject.data() : AnyWidget();
    m_pressWindow = widget->window()->windowHandle(); // none in a scene
    m_pointer = widget->mapToGlobal(onSpot ? m_kind.spot(*widget, m_dice) : m_dice.PointIn(widget->size()));
    m_held = m_dice.OneIn(3) ? Qt::RightButton : Qt::LeftButton;
    Note("press", widget);
    Send(QEvent::MouseButtonPress, m_held);
}

void Storm::OtherInput()
{
    QWidget* widget = AnyWidget();
    const QPointer<QWindow> window = widget->window()->windowHandle();
    if (!window)
        return;
    const QPoint pos = m_dice.PointIn(widget->size());
    const QPoint global = widget->mapToGlobal(pos);
    const QPoint inWindow = widget->window()->mapFromGlobal(global);
    const auto spontaneous = [](QObject* receiver, QEvent&& event) {
        QSpontaneKeyEvent::setSpontaneous(&event); // Qt passes an event made by a program to no parent
        qApp->notify(receiver, &event);
    };
    const QPoint turn(0, m_dice.OneIn(3) ? -120 : 120);
    Do(widget,
       {
           {"key", [&] { Key(widget, *window); }},
           {"key", [&] { Key(widget, *window); }},
           {"key", [&] { Key(widget, *window); }},
           {"wheel",
            [&] {
                spontaneous(
                    window,
                    QWheelEvent(inWindow, global, {}, turn, Qt::NoButton, {}, Qt::NoScrollPhase, false));
            }},
           {"context menu",
            [&] { spontaneous(widget, QContextMenuEvent(QContextMenuEvent::Keyboard, pos, global)); }},
           {"input method", [&] { Compose(); }},
           {"hover",
            [&] {
                m_pressWindow = m_held == Qt::NoButton ? window : m_pressWindow;
                m_pointer = global;
                Send(QEvent::MouseMove, Qt::NoButton);
            }},
           {"drag", [&] { DragAndDrop(window, inWindow); }},
       });
}

void Storm::Key(QWidget* widget, QWindow& window)
{
    const Qt::Key keys[]
        = {Qt::Key_Space,  Qt::Key_Escape, Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Return,   Qt::Key_Enter,
           Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Down, Qt::Key_Home,    Qt::Key_PageDown, Qt::Key_Backspace,
           Qt::Key_Delete, Qt::Key_F4,     Qt::Key_Menu, Qt::Key_1,       Qt::Key_9,        Qt::Key_Period,
           Qt::Key_W,      Qt::Key_V,      Qt::Key_X,    Qt::Key_Z,       Qt::Key_A};
    const Qt::KeyboardModifier modifiers[] = {Qt::NoModifier,    Qt::NoModifier,  Qt::ControlModifier,
                                              Qt::ShiftModifier, Qt::AltModifier, Qt::KeypadModifier};
    const Qt::Key code = m_dice.OneOf(keys);
    const Qt::KeyboardModifier modifier = m_dice.OneOf(modifiers);
    const QString text = code < 0x80 ? QString(QChar(int(code))) : QString();
    if (m_dice.OneIn(2))
        widget->setFocus();
    Note(qPrintable(QStringLiteral("  %1 %2").arg(code, 0, 16).arg(modifier, 0, 16)));
    const QPointer<QWindow> guard(&window);
    qt_handleKeyEvent(&window, QEvent::KeyPress, code, modifier, text);
    QCoreApplication::processEvents();
    if (guard)
        qt_handleKeyEvent(&window, QEvent::KeyRelease, code, modifier, text);
}

void Storm::Compose()
{
    QWidget* const editor = QApplication::focusWidget();
    QInputMethodEvent event(m_dice.OneIn(2) ? m_dice.Text() : QString(), {});
    event.setCommitString(m_dice.OneIn(2) ? m_dice.Text() : QString(), -m_dice.Below(4), m_dice.Below(4));
    if (editor != nullptr && !IsForeign(editor))
        QCoreApplication::sendEvent(editor, &event);
}

/// Enters, moves, and drops or leaves; a slot may delete the window meanwhile.
void Storm::DragAndDrop(const QPointer<QWindow>& window, const QPoint& pos)
{
    QMimeData data;
    data.setText(m_dice.Text());
    const QScopedValueRollback<bool> fragile(m_fragile, true);
    QDragEnterEvent enter(pos, Qt::CopyAction, &data, Qt::LeftButton, {});
    enter.ignore();
    QCoreApplication::sendEvent(window, &enter);
    if (!window || !enter.isAccepted())
        return;
    QDragMoveEvent move(pos + QPoint(2, 2), Qt::CopyAction, &data, Qt::LeftButton, {});
    move.ignore();
    QCoreApplication::sendEvent(window, &move);
    QDragLeaveEvent leave;
    QDropEvent drop(pos, Qt::CopyAction, &data, Qt::LeftButton, {});
    if (window)
        QCoreApplication::sendEvent(window, move.isAccepted() ? static_cast<QEvent*>(&drop) : &leave);
}

void Storm::ChangeWidget()
{
    QWidget* const widgets[] = {m_subject, m_subject, m_container, m_window};
    const QPointer<QWidget> widget = m_dice.OneOf(widgets);
    if (!widget)
        return;
    const auto toggle = [&](void (QWidget::*set)(bool)) {
        (widget->*set)(false);
        if (widget && !m_dice.OneIn(4))
            (widget->*set)(true);
    };
    const bool yes = m_dice.OneIn(2);
    const QSize size = widget->isWindow() || !m_dice.OneIn(9) ? m_dice.Size() : QSize(30000, 9);
    Do(widget,
       {
           {"resize", [&] { widget->resize(size); }},
           {"resize", [&] { widget->resize(size); }},
           {"move", [&] { widget->move(m_dice.Below(1000) - 300, m_dice.Below(800) - 300); }},
           {"hide", [&] { toggle(&QWidget::setVisible); }},
           {"disable", [&] { toggle(&QWidget::setEnabled); }},
           {"direction", [&] { widget->setLayoutDirection(yes ? Qt::RightToLeft : Qt::LeftToRight); }},
           {"font", [&] { widget->setFont(FontOfSize(1 + m_dice.Below(40))); }},
           {"palette", [&] { widget->setPalette(QColor(yes ? Qt::red : Qt::white)); }},
           {"state", [&] { widget->setWindowState(yes ? Qt::WindowMaximized : Qt::WindowNoState); }},
           {"locale", [&] { widget->setLocale(QLocale(yes ? QLocale::Arabic : QLocale::German)); }},
           {"parent", [&] { Reparent(); }},
       });
}

void Storm::Reparent()
{
    if (!m_subject || (m_fragile && m_subject->isWindow())) // its window would go with its place
        return;
    QWidget* const parents[] = {nullptr, m_window, m_container, m_container};
    const Qt::WindowFlags flags = m_subject->windowFlags();
    m_subject->setParent(
        m_dice.OneOf(parents), m_dice.OneIn(2) ? flags & ~Qt::WindowFlags(Qt::Window) : flags);
    if (m_subject)
        m_subject->show();
}

void Storm::ChangeSurroundings()
{
    const QString skins[] = {QStringLiteral("Black"), QStringLiteral("White"), QStringLiteral("Nowhere")};
    const bool yes = m_dice.OneIn(2);
    QWidget* owner = yes ? nullptr : AnyWidget();
    Do(owner,
       {
           {"skin", [&] { KvGUI::SetSkinVersion(m_dice.OneOf(skins)); }},
           {"language", [&] { ChangeLanguage(); }},
           {"application font", [&] { qApp->setFont(FontOfSize(5 + m_dice.Below(20))); }},
           {"application palette", [&] { qApp->setPalette(QColor(yes ? Qt::darkGreen : Qt::white)); }},
           {"application direction", [&] { qApp->setLayoutDirection(Qt::LayoutDirection(m_dice.Below(2))); }},
           {"clipboard", [&] { QGuiApplication::clipboard()->setText(m_dice.Text()); }},
           {"bubble",
            [&] {
                const auto side = UICommonMdl::CTipLabel::DisplayPosition(m_dice.Int());
                UICommonMdl::CTipLabel::Instance()->ShowTip(m_dice.Text(), owner, side);
            }},
           {"message",
            [&] { KvGUI::KvMessageNotify::Instance()->AddTextNotification(m_dice.Text(), owner); }},
           {"modal dialog",
            [&] {
                QWidget dialog;
                dialog.setWindowModality(Qt::ApplicationModal);
                dialog.show();
            }},
       });
}

void Storm::ChangeLanguage()
{
    if (m_language == nullptr)
        QCoreApplication::installTranslator(m_language = new LongLanguage);
    else
        delete std::exchange(m_language, nullptr); // which removes it
}

/// Lets a timer of the widget run out, or takes an animation further.
void Storm::PassTime()
{
    if (!m_subject)
        return;
    const auto timers = m_subject->findChildren<QTimer*>();
    const auto animations = m_subject->findChildren<QAbstractAnimation*>();
    QTimer* timer = timers.value(m_dice.Below(timers.size() + 1));
    QAbstractAnimation* animation = animations.value(m_dice.Below(animations.size() + 1));
    if (timer != nullptr && timer->isActive()) {
        Note("timer", timer);
        QTimerEvent event(timer->timerId());
        QCoreApplication::sendEvent(timer, &event);
    } else if (animation != nullptr && animation->state() == QAbstractAnimation::Running) {
        Note("animation", animation);
        animation->setCurrentTime(m_dice.Below(qMax(1, animation->totalDuration() + 1)));
    }
}

// ---- Calls

void Storm::Call()
{
    if (!m_subject)
        return;
    const int count = m_kind.operations.size();
    const int which = m_dice.Below(count + 4);
    if (which >= count)
        return which % 2 == 0 ? CallMethod() : SetProperty();
    Note(("operation " + QByteArray::number(which)).constData());
    m_kind.operations.at(which)(*m_subject, m_dice);
}

/// A public slot, with arguments that moc tells the types of.
void Storm::CallMethod()
{
    const QMetaObject* metaObject = m_subject->metaObject();
    const int first = QObject::staticMetaObject.methodCount();
    const QMetaMethod method = metaObject->method(first + m_dice.Below(metaObject->methodCount() - first));
    // What warns by itself where it is out of place, or is only for drawing.
    static const QList<QByteArray> notForClients{"setStyleSheet", "grab", "repaint", "setWindowModified"};
    if (method.methodType() == QMetaMethod::Signal || method.access() != QMetaMethod::Public
        || notForClients.contains(method.name()) || method.parameterCount() > 4)
        return;
    QVariant values[4];
    QGenericArgument arguments[4];
    for (int i = 0; i < method.parameterCount(); ++i) {
        values[i] = m_dice.Value(method.parameterType(i), IsOfTheLibrary(method.enclosingMetaObject()));
        if (!values[i].isValid())
            return;
        arguments[i] = QGenericArgument(values[i].typeName(), values[i].constData());
    }
    Note(method.methodSignature(), m_subject);
    method.invoke(m_subject, Qt::DirectConnection, arguments[0], arguments[1], arguments[2], arguments[3]);
}

void Storm::SetProperty()
{
    const QMetaObject* metaObject = m_subject->metaObject();
    const int first = QWidget::staticMetaObject.propertyCount();
    if (metaObject->propertyCount() == first)
        return;
    const QMetaProperty property
        = metaObject->property(first + m_dice.Below(metaObject->propertyCount() - first));
    // Qt itself warns of a wild frameRect, and does not bear a dialog's "modal" to change while it is shown.
    const QMetaObject* owner = property.enclosingMetaObject();
    if (owner == &QFrame::staticMetaObject || owner == &QDialog::staticMetaObject)
        return;
    // A line edit goes on typing into the mask that it had before it emitted inputRejected(), and Qt goes on
    // giving the focus to the clear button, for which the edit emitted editingFinished().
    const bool isUsedAgain
        = qstrcmp(property.name(), "inputMask") == 0 || qstrcmp(property.name(), "clearButtonEnabled") == 0;
    if (m_slotDepth > 0 && isUsedAgain)
        return;
    const QMetaEnum keys = property.enumerator();
    const QVariant value = property.isEnumType()
        ? QVariant(keys.value(m_dice.Below(keys.keyCount())))
        : m_dice.Value(property.userType(), IsOfTheLibrary(property.enclosingMetaObject()));
    if (!property.isWritable() || !value.isValid())
        return;
    Note(property.name(), m_subject);
    property.write(m_subject, value);
}

/// The widget, what it lies in, or the whole window.
void Storm::Delete(bool now)
{
    QWidget* const widgets[] = {m_subject, m_subject, m_subject, m_container, m_window};
    const QPointer<QWidget> widget = m_dice.OneOf(widgets);
    if (!widget)
        return;
    // Qt uses a window once more after a right press or a drag in it, and comes to here in a menu's loop.
    if (m_fragile && widget->isWindow())
        return;
    const bool kept = m_keptSinceLoop >= 0;
    if (kept && QThread::currentThread()->loopLevel() > m_keptSinceLoop) // which would not wait for the slot
        return;
    const bool later = !now || kept;
    Note(later ? "delete later" : "delete", widget);
    if (later)
        return widget->deleteLater();
    const QScopedValueRollback<bool> deleting(m_deleting, true);
    delete widget;
}

} // namespace Storms
