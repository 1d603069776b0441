# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
use strict;
use warnings;
use utf8;
use open qw(:std :encoding(UTF-8));
use File::Find;
use Texts;

my @entries = Texts::entries($ARGV[0]);

sub read_file {
    my ($path) = @_;
    open my $file, '<', $path or return undef;
    local $/;
    return scalar <$file>;
}

# The end of the titles that are made of pieces.
my %none = map { $_ => 1 } (' - ERRORE : ');
# On a printed sheet: faces, and marks between two values.
my %mark = map { $_ => 1 } ('Times New Roman', 'Courier New', 'x', 'gg');

my (%source, %literal, @shown);
find({ no_chdir => 1, wanted => sub { $source{$_} = read_file($_) if /\.(cpp|h)$/ } }, 'src');
my $quoted = qr/"((?:[^"\\\n]|\\.)*)"/;
for my $path (sort keys %source) {
    my $text = $source{$path};
    $text =~ s{^\s*(//|#include).*$}{}mg;
    $literal{$1} = 1 while $text =~ /$quoted/g;
    # The tools beside the program have their own texts, and their own tests; so have the messages.
    next if $path =~ m{^src/(tools/|core/Messages\.h$)};
    while ($text =~ /$quoted/g) {
        my $found = $1;
        if ($found =~ /ERRORE : $/) {
            push @shown, ['error', $found, $path];
        } elsif ($found =~ /\p{Lu}{3}/ && $found =~ / / && $found !~ /\p{Ll}/ && $path !~ /Sheet/) {
            push @shown, ['text in capitals', $found, $path];
        } elsif ($path =~ /Sheets?\.cpp$/ && $found =~ /\p{L}/ && !$mark{$found}) {
            push @shown, ['sheet', $found, $path];
        }
    }
    push @shown, ['window', $1, $path] while $text =~ /setWindowTitle\([^;]*?$quoted/g;
    while ($text =~ /(?:DialogTitle = |PrepareDialog\()$quoted/g) {
        push @shown, ['dialog', $1, $path];
    }
}

# What is shown is in the list.
my %titles = map { $_->{text} => 1 } grep { $_->{kind} eq 'error' } @entries;
my %listed;
push @{ $listed{ $_->{kind} } }, $_->{text} for @entries;
for my $text (@shown) {
    my ($kind, $found, $path) = @$text;
    next if $none{$found} || $found !~ /\p{L}/;
    # Capitals distinguish a message, whose place is another, from other texts except some headings.
    my @kinds = $kind eq 'text in capitals' ? qw(caption sheet) : ($kind);
    my $stands = $kind eq 'error' ? $titles{$found} : grep { index($_, $found) >= 0 } map { @{ $listed{$_} } } @kinds;
    Texts::complain("$path: \"$found\" is no $kind of the list") unless $stands;
}
Texts::complain('hardly a text was found in the sources') if @shown < 150;

# What is in the list is in the sources; some texts, and the names of like controls, are made of pieces and numbers.
sub is_made {
    my ($text) = @_;
    return 1 if $text eq '' || $literal{$text};
    for my $length (2 .. length $text) {
        return 1 if $literal{ substr $text, 0, $length } && is_made(substr $text, $length);
    }
    return $text =~ s/^\d+// && is_made($text);
}
my $sources = join "\n", values %source;
for my $entry (@entries) {
    if ($entry->{kind} eq 'error') {
        my $title = $entry->{text};
        my $name = $title =~ /^(.*) - ERRORE : $/ ? $1 : undef;
        Texts::complain("\"$title\" is in no source")
            unless $literal{$title} || defined $name && is_made($name);
        next;
    }
    for my $part (Texts::parts($entry->{text})) {
        Texts::complain("\"$part\" of \"$entry->{text}\" is in no source") unless index($sources, $part) >= 0 || is_made($part);
    }
}

# The tests that it names are there; one that is to compare a text holds it.
my %seen;
for my $entry (@entries) {
    Texts::complain("twice in the list: \"$entry->{text}\" $entry->{detail}")
        if $seen{ join '|', @$entry{qw(kind text detail)} }++;
    next if Texts::cannot_arise($entry);
    my ($folder, $topic, $function) = $entry->{where} =~ /^([a-z]+)_(\w+):(\w+)(?::.+)?$/;
    my ($path) = defined $folder ? grep { -e } glob "tests/{,windows/,tools/}$folder/${topic}Test.cpp" : ();
    my $test = defined $path ? read_file($path) : undef;
    if (!defined $test) {
        Texts::complain("$entry->{where}: no such test");
    } elsif ($test !~ /\bvoid (?:\w+::)?\Q$function\E\(\)/) {
        Texts::complain("$entry->{where}: no such function");
    } elsif ($entry->{kind} =~ /^(window|sheet|caption)$/) {
        $test =~ s/\\xE0(?:" ")?/à/g;
        for my $part (Texts::parts($entry->{text})) {
            Texts::complain("$entry->{where} does not hold \"$part\"") if index($test, $part) < 0;
        }
    }
}
exit($Texts::failures > 0);
