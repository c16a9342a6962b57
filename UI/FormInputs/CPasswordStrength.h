#pragma once

#include <QFrame>
#include <QPixmap>
#include <UIComponentsExport.h>

namespace UICommonMdl {

/// A meter that shows how strong a password is in three levels. The client rates the password:
/// @code
/// connect(password, &QLineEdit::textEdited, this, [=](const QString& text) {
///     meter->SetStrength(Rate(text));
/// });
/// @endcode
/// The pictures are "keystrength-bg.png" and "keystrength-1.png" to "keystrength-3.png" of the skin; with a
/// missing one nothing is drawn in its place.
class UICOMPONENTS_EXPORT CPasswordStrength : public QFrame
{
    Q_OBJECT
    /// The level that is drawn, for style sheets: 0 none, 1 weak, 2 medium, 3 strong.
    Q_PROPERTY(int strength READ GetStrength WRITE SetStrength)

public:
    explicit CPasswordStrength(QWidget* parent = nullptr);

    /// Shows the level and polishes the widget again, so that style sheets can select it by the property
    /// "strength".
    /// @param level 0 and less: nothing is drawn; 1 weak, 2 medium, 3 and more strong
    void SetStrength(int level);
    int GetStrength() const; ///< the level as it was given; 0 at first

    QSize sizeHint() const override; ///< that of the background picture

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void LoadPictures();
    const QPixmap& LevelPicture() const;

    int m_iStrength = 0;
    QPixmap m_background;
    QPixmap m_level1;
    QPixmap m_level2;
    QPixmap m_level3;
};

} // namespace UICommonMdl
