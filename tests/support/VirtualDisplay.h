#pragma once

namespace TestSupport {

/// A virtual X server for one test program, for what the offscreen platform cannot do. Make it before the
/// application; DISPLAY and QT_QPA_PLATFORM then name it. It ends with the object, and with the program
/// also when that crashes.
class VirtualDisplay
{
public:
    /// Starts Xvfb on a display number that it chooses itself, and waits until it answers. Ends the program
    /// with a message when there is no Xvfb.
    VirtualDisplay();
    ~VirtualDisplay();
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;

private:
    int m_iProcess;
};

} // namespace TestSupport
