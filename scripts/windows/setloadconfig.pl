#!/usr/bin/env perl
# SPDX-License-Identifier: GPL-3.0-or-later
# setloadconfig.pl PROGRAM.exe: enters the section .ldcfg, which holds the load configuration, into the header's list of
# such parts, and sets the header's checksum anew.
use strict;
use warnings;

my ($file) = @ARGV;
open(my $in, '<:raw', $file) or die "$file: $!\n";
my $bytes = do { local $/; <$in> };
close($in);

my $header = unpack('V', substr($bytes, 0x3c, 4));
substr($bytes, $header, 4) eq "PE\0\0" or die "$file: no program for Windows\n";
my ($sections, $size) = (unpack('v', substr($bytes, $header + 6, 2)), unpack('v', substr($bytes, $header + 20, 2)));
my $optional = $header + 24;
unpack('v', substr($bytes, $optional, 2)) == 0x20b or die "$file: no program of 64 bits\n";

my $entry = $optional + 112 + 10 * 8; # the load configuration's place in the list
my ($address, $configuration);
for my $i (0 .. $sections - 1) {
    my $section = substr($bytes, $optional + $size + 40 * $i, 40);
    next unless unpack('Z8', $section) eq '.ldcfg';
    $address = unpack('V', substr($section, 12, 4));
    $configuration = unpack('V', substr($section, 20, 4));
}
defined $address or die "$file: has no section .ldcfg\n";
# It begins with its own size.
substr($bytes, $entry, 8) = pack('VV', $address, unpack('V', substr($bytes, $configuration, 4)));

my $checksum = $optional + 64;
substr($bytes, $checksum, 4) = pack('V', 0);
my $sum = unpack('%64v*', length($bytes) % 2 ? "$bytes\0" : $bytes);
$sum = ($sum & 0xffff) + ($sum >> 16) while $sum >> 16;
substr($bytes, $checksum, 4) = pack('V', $sum + length($bytes));

open(my $out, '>:raw', $file) or die "$file: $!\n";
print $out $bytes;
close($out) or die "$file: $!\n";
