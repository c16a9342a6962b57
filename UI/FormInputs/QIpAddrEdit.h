#pragma once

#include <UI/FormInputs/CTipLabel.h>

#include <QFrame>
#include <UIComponentsExport.h>
#include <array>

class QLabel;

namespace UICommonMdl {

class QIpPartLineEdit;

/// An entry field for an IPv4 address: four octets with dots between them. The focus moves on while the
/// operator types; a whole address that is pasted or dropped into any octet fills all four.
/// @code
/// auto* address = new QIpAddrEdit(this);
/// address->setRequired(true);
/// address->settext(QStringLiteral("192.168.1.64"));
/// ...
/// if (QHostAddress(address->text()).isNull())
///     address->showErrorHint(true, tr("Enter a complete address"), CTipLabel::Left);
/// @endcode
/// Style sheets select the frame by its properties, for example
/// `UICommonMdl--QIpAddrEdit[errorState="true"]`. Give the field an accessible name: its octets take theirs
/// from it. A slot may delete the field.
class UICOMPONENTS_EXPORT QIpAddrEdit : public QFrame
{
    Q_OBJECT
    /// Whether an octet has the keyboard focus; the sheet draws the focus around the whole field.
    Q_PROPERTY(bool notice READ notice)
    /// Whether the field is marked as wrong by showErrorHint().
    Q_PROPERTY(bool errorState READ errorState)

public:
    explicit QIpAddrEdit(QWidget* parent = nullptr);
    ~QIpAddrEdit() override;

    /// Fills the octets with the parts of @p text between its dots; octets without a part become empty, parts
    /// after the fourth are left out. The parts are taken as they are, also those that are no octets. Does
    /// not move the focus.
    void settext(const QString& text);

    /// The octets with dots between them, an empty octet as it is ("10..0.1"); empty when all of them are.
    QString text();

    /// Clears the octets.
    void clear();

    /// Shows or hides the red asterisk at the left; false at first. What is entered is not checked.
    void setRequired(bool required);

    /// Marks the field as wrong and tells why in a CTipLabel, or takes both back. The bubble goes after its
    /// display time, the mark stays until it is taken back or the operator edits the address. A slot of that
    /// edit's signals may set it again.
    /// @param text of the bubble; when empty, only the mark is shown
    /// @param position the bubble's side with the arrow
    void showErrorHint(bool show, QString text, CTipLabel::DisplayPosition position);

    bool notice() const { return m_bNotice; } ///< whether an octet has the focus
    bool errorState() const { return m_bError; } ///< whether the field is marked as wrong

    bool eventFilter(QObject* watched, QEvent* event) override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// An octet has another text; @p text is text(). Setting an address emits it once an octet that changes.
    void textchanged(const QString& text);
    /// The operator edited the address; comes before textchanged() while typing.
    void textedited(const QString& text);
    /// The Enter key of the keypad was pressed; the main Return key does not count.
    void sgnEnterPress();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void textchangedslot(const QString& text);
    void texteditedslot(const QString& text);

private:
    void BuildOctets();
    void BuildDots();
    void BuildSymbol();
    void AdjustPartLenth();
    void TakeAddress(const QString& address);
    void ForgetError();
    void NameOctets();
    void RefreshStyle();
    void Emit(void (QIpAddrEdit::*signal)(const QString&));

    std::array<QIpPartLineEdit*, 4> m_octets{};
    std::array<QLabel*, 3> m_dots{};
    QLabel* m_pSymbolRequired;
    bool m_bRequired = false;
    bool m_bNotice = false;
    bool m_bError = false;
    int m_iEmitting = 0; ///< depth of emissions in progress
};

} // namespace UICommonMdl
