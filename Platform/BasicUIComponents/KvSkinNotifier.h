#pragma once

#include <QObject>
#include <UIComponentsExport.h>

namespace KvGUI {

/// Tells that the skin has changed. Connect to Instance() whatever keeps pictures or colours of a skin:
/// @code
/// connect(KvGUI::KvSkinNotifier::Instance(), &KvGUI::KvSkinNotifier::SignalSkinChanged,
///         this, &MyWidget::LoadPictures);
/// @endcode
class UICOMPONENTS_EXPORT KvSkinNotifier : public QObject
{
    Q_OBJECT

public:
    /// The one notifier; never null.
    static KvSkinNotifier* Instance();

Q_SIGNALS:
    /// The application name or the skin version is another one now; GetAppName() and GetSkinVersion()
    /// give the new values.
    void SignalSkinChanged();

private:
    KvSkinNotifier() = default;
};

} // namespace KvGUI
