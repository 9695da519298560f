#pragma once

/// What the program can show its windows on.
namespace DisplayServer
{
/// Lets a program without a display go on, with windows that nobody sees: pictures and --help need no more,
/// and Qt would end the program with a core dump. To be called before there is a QApplication. False when
/// there is no display; a platform that the environment or \a arguments name counts as one.
[[nodiscard]] bool find(int count, char *const *arguments);
} // namespace DisplayServer
