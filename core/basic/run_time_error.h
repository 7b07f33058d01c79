// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <exception>

namespace zrv {

/// A failure with a number and a description, the pair that every error box of the program shows.
/// Store errors carry the store's numbers (core/store/store_error.h); numbers of files and folders are those in
/// namespace error below. Numbers are signed 32-bit and shown as signed decimals.
class RunTimeError : public std::exception {
public:
    RunTimeError(qint32 number, QString description);

    [[nodiscard]] qint32 number() const { return m_number; }
    [[nodiscard]] const QString &description() const { return m_description; }
    [[nodiscard]] const char *what() const noexcept override { return m_what.constData(); }

private:
    qint32 m_number;
    QString m_description;
    QByteArray m_what;
};

/// Leaves the program: thrown by a screen that ends it, caught by main alone.
/// It is no std::exception, so that no handler of errors swallows it.
struct ProgramEnd {};

namespace error {

inline constexpr qint32 InvalidProcedureCall = 5;
inline constexpr qint32 Overflow = 6;
inline constexpr qint32 OutOfMemory = 7;
inline constexpr qint32 SubscriptOutOfRange = 9;
inline constexpr qint32 TypeMismatch = 13;
inline constexpr qint32 FileNotFound = 53;
inline constexpr qint32 DeviceIo = 57;
inline constexpr qint32 DiskFull = 61;
inline constexpr qint32 InputPastEnd = 62;
inline constexpr qint32 PermissionDenied = 70;
inline constexpr qint32 PathFileAccess = 75;
inline constexpr qint32 PathNotFound = 76;

} // namespace error

} // namespace zrv
