#pragma once

class QTextCodec;

/// UTF-8 as QSettings needs it. QSettings encodes texts one UTF-16 unit at a time, and the UTF-8 codec of Qt
/// has no bytes for half a surrogate pair: characters beyond U+FFFF (rare ideographs, pictographs) were lost.
/// This codec keeps the first half of a pair until the second one comes. Lives as long as the program.
QTextCodec* IniCodec();
