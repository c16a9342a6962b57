#pragma once

#include "Kind.h"

#include <QEvent>
#include <QPointer>
#include <QTranslator>

class QWindow;

namespace Storms {

/// One storm over one widget: whatever an operator, a window system and a client can do to it, also from
/// inside its signals and inside its modal loops.
class Storm : public QObject
{
public:
    Storm(const Kind& kind, int seed);
    ~Storm() override;

    /// One step. @return what was wrong afterwards, or an empty text
    QString Step();

    /// A signal of an object of the widget was emitted: at times acts from inside.
    void InSlot(QObject* sender, const QMetaMethod& signal, void** arguments);
    void NoteFault(const QString& fault);

    /// What was done since the last storm began, one step a line.
    static const QByteArray& Log();

private:
    void MakeStage();
    void Attach();
    int KeptSince(bool keeps) const;
    void Serve();
    void CloseTopmost();

    struct NamedAction
    {
        const char* name;
        std::function<void()> act;
    };
    void Note(const char* what, const QObject* object = nullptr);
    void Do(const QObject* object, std::initializer_list<NamedAction> actions);

    void Act();
    void Mouse();
    void Press();
    void Send(QEvent::Type type, Qt::MouseButton button);
    void OtherInput();
    void Key(QWidget* widget, QWindow& window);
    void Compose();
    void DragAndDrop(const QPointer<QWindow>& window, const QPoint& pos);
    void ChangeWidget();
    void Reparent();
    void ChangeSurroundings();
    void ChangeLanguage();
    void PassTime();
    void Call();
    void CallMethod();
    void SetProperty();
    void Delete(bool now);
    QWidget* AnyWidget();

    const Kind& m_kind;
    Dice m_dice;
    QPointer<QWidget> m_window;
    QPointer<QWidget> m_container; ///< in the window, the subject's parent most of the time
    QPointer<QWidget> m_subject;
    QPointer<QWindow> m_pressWindow; ///< gets all mouse events until the release
    QPoint m_pointer; ///< global
    Qt::MouseButton m_held = Qt::NoButton;
    QTranslator* m_language = nullptr;
    QString m_fault;
    int m_slotDepth = 0;
    int m_servedLoop = 0;
    int m_modalSteps = 0;
    int m_keptSinceLoop = -1; ///< the event loop of a signal or press that Qt comes back to a widget after
    bool m_deleting = false;
    bool m_fragile = false; ///< in an event after which Qt needs the window
};

} // namespace Storms
