# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The list of the texts, for the checks beside it.
package Texts;
use strict;
use warnings;
use utf8;
use open qw(:std :encoding(UTF-8));

our $failures = 0;

sub complain {
    my ($complaint) = @_;
    ++$failures;
    print STDERR "$complaint\n";
}

# The lines of the list: kind, text without its quotes, the detail and where it is shown.
sub entries {
    my ($path) = @_;
    my @entries;
    open my $list, '<', $path or die "$path: $!";
    while (my $line = <$list>) {
        chomp $line;
        next if $line =~ /^(#|$)/;
        if ($line !~ /^(error|dialog|window|sheet|caption) \| "(.+?)" \| (.+?) \| (\S.*)$/) {
            complain("line $. of the list can't be read: $line");
            next;
        }
        push @entries, { kind => $1, text => $2, detail => $3, where => $4 };
    }
    return @entries;
}

# The parts of a text between its placeholders, as {riga}.
sub parts {
    my ($text) = @_;
    return grep { /\S/ } split /\{[a-z]+\}/, $text;
}

sub cannot_arise {
    my ($entry) = @_;
    return $entry->{where} =~ /^cannot arise: \S/;
}

1;
