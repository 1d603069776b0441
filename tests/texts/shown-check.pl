# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
use strict;
use warnings;
use utf8;
use open qw(:std :encoding(UTF-8));
use Texts;

my ($list, $folder) = @ARGV;

# What a line of the list matches of what was shown: kind, text and detail. What fills a placeholder is not a report.
sub pattern {
    my ($entry) = @_;
    my $text = join '(?:(?!ERRORE : ).)+', map { quotemeta } split /\{[a-z]+\}/, $entry->{text}, -1;
    return qr/^box\t"$text"\t\Q$1\E\t\Q$2\E$/ if $entry->{kind} eq 'box' && $entry->{detail} =~ /^(\S+), (.+)$/;
    return qr/^box\t"$text\Q$entry->{detail}\E [^"]+"\t-\tOK$/ if $entry->{kind} eq 'error';
    return qr/^dialog\t"$text"\t\Q$entry->{detail}\E\t-$/;
}

my %shown;
for my $path (glob "$folder/*") {
    # Its boxes are made up.
    next if $path =~ /core_RunTimeError$/;
    open my $file, '<', $path or die "$path: $!";
    while (my $line = <$file>) {
        chomp $line;
        my ($what, $where) = $line =~ /^(.*)\t([^\t]*)$/ or next;
        push @{ $shown{$what} }, $where;
    }
}
Texts::complain("nothing was noted in $folder") unless %shown;

my %known;
for my $entry (grep { $_->{kind} =~ /^(box|error|dialog)$/ } Texts::entries($list)) {
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
