# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
use strict;
use warnings;
use utf8;
use open qw(:std :encoding(UTF-8));
use Texts;

my ($list, $folder, $messages) = @ARGV;

# What a line of the list matches of what was shown: kind, text and detail.
sub pattern {
    my ($entry) = @_;
    return qr/^box\t"\Q$entry->{text}$entry->{detail}\E [^"]+"\t-\tOK$/ if $entry->{kind} eq 'error';
    return qr/^dialog\t"\Q$entry->{text}\E"\t\Q$entry->{detail}\E\t-$/;
}

# What a message matches: text, icon and buttons. What fills a place is not a report.
sub pattern_of_message {
    my ($text, $rest) = @_;
    $text = join '(?:(?!ERRORE : ).)+', map { quotemeta } split /\{\}/, $text, -1;
    return qr/^box\t$text\t\Q$rest\E$/;
}

my %shown;
for my $path (glob "$folder/*") {
    # Their boxes are made up.
    next if $path =~ /(core_RunTimeError|toolkit_\w+)$/;
    open my $file, '<', $path or die "$path: $!";
    while (my $line = <$file>) {
        chomp $line;
        my ($what, $where) = $line =~ /^(.*)\t([^\t]*)$/ or next;
        push @{ $shown{$what} }, $where;
    }
}
Texts::complain("nothing was noted in $folder") unless %shown;

my %known;
open my $rows, '-|', $messages or die "$messages: $!";
while (my $row = <$rows>) {
    chomp $row;
    my ($name, $text, $rest) = split /\t/, $row, 3;
    my $pattern = pattern_of_message($text, $rest);
    my @came = grep { /$pattern/ } keys %shown;
    $known{$_} = 1 for @came;
    Texts::complain("no test showed $name: $text") unless @came;
}
close $rows or die "$messages: $!";
for my $entry (grep { $_->{kind} =~ /^(error|dialog)$/ } Texts::entries($list)) {
    if ($entry->{kind} eq 'error') {
        # Any error may come under a title that is listed; the list names those that belong to it.
        my $any = qr/^box\t"\Q$entry->{text}\E\d+ [^"]+"\t-\tOK$/;
        $known{$_} = 1 for grep { /$any/ } keys %shown;
    }
    next if Texts::cannot_arise($entry);
    my $pattern = pattern($entry);
    my @came = grep { /$pattern/ } keys %shown;
    $known{$_} = 1 for @came;
    my $where = $entry->{where};
    Texts::complain("$where did not show \"$entry->{text}\" | $entry->{detail}")
        unless grep { $_ eq $where || index($_, "$where:") == 0 } map { @{ $shown{$_} } } @came;
}
for my $what (grep { !$known{$_} } sort keys %shown) {
    Texts::complain("not in the list: $what, shown by $shown{$what}[0]");
}
exit($Texts::failures > 0);
