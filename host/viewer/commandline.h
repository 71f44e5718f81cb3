// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "options.h"

#include <QCommandLineParser>

#include <stdexcept>

namespace Viewer {

/// An argument that cannot be: the message is one line that names it.
class CommandLineError : public std::runtime_error
{
public:
    explicit CommandLineError(const QString &message);
};

/// The arguments of the viewer. Works before there is an application object, because some of them
/// decide what kind of application is made.
class CommandLine
{
public:
    CommandLine();

    /// Reads `arguments`, the first of which is the program.
    /// \throws CommandLineError for an unknown option, a superfluous argument or a name that is in
    /// no list.
    Options parse(const QStringList &arguments);

    /// `--help` or `--version` stands among the arguments parsed last.
    bool wantsHelp() const;
    bool wantsVersion() const;

    /// The text for `--help`; needs an application object.
    QString helpText() const;

private:
    QCommandLineParser m_parser;
};

} // namespace Viewer
