#!/usr/bin/env perl
# SPDX-License-Identifier: GPL-3.0-or-later
# Prints what the programs are made of, as a bill of materials in CycloneDX's JSON: sbom.pl VERSION EPOCH PROGRAM...
# Beside each PROGRAM.exe lies the linker's map, which says what was really taken, and from which library. A library of
# which nothing is said below is an error.
use strict;
use warnings;
use Cwd qw(abs_path);
use File::Basename qw(basename);
use JSON::PP;
use POSIX qw(strftime);

# What people call it, its licence by SPDX, and the file and pattern that have its version. What Qt brings along says none.
my $zlib_header = '/opt/minizip-mingw/include/zlib.h';
my $zlib_version = qr/ZLIB_VERSION "([\d.]+)/;
my $qt_version_file = '/opt/qt-mingw/lib/cmake/Qt6/Qt6ConfigVersionImpl.cmake';
my %components = (
    Qt          => ['Qt',                      'LGPL-3.0-only', $qt_version_file, qr/PACKAGE_VERSION "([\d.]+)"/],
    PCRE2       => ['PCRE2, as Qt brings it',  'BSD-3-Clause'],
    QtZlib      => ['zlib, as Qt brings it',   'Zlib'],
    Libpng      => ['libpng, as Qt brings it', 'libpng-2.0'],
    FreeType    => ['FreeType, as Qt brings it', 'FTL'],
    HarfBuzz    => ['HarfBuzz, as Qt brings it', 'MIT-Modern-Variant'],
    SQLite      => ['SQLite', 'blessing', '/opt/sqlite-mingw/include/sqlite3.h', qr/SQLITE_VERSION\s+"([\d.]+)"/],
    zlib        => ['zlib',    'Zlib', $zlib_header, $zlib_version],
    minizip     => ['minizip', 'Zlib', $zlib_header, $zlib_version],
    GCC         => ['GCC runtime libraries', 'GPL-3.0-or-later WITH GCC-exception-3.1'],
    MinGW       => ['mingw-w64 runtime', 'ZPL-2.1',
                    '/usr/x86_64-w64-mingw32/include/_mingw_mac.h', undef],
    Winpthreads => ['winpthreads', 'MIT'],
);
my @libraries = (
    [qr{/qt-mingw/.*/libQt6BundledPcre2\.a$},    'PCRE2'],
    [qr{/qt-mingw/.*/libQt6BundledZLIB\.a$},     'QtZlib'],
    [qr{/qt-mingw/.*/libQt6BundledLibpng\.a$},   'Libpng'],
    [qr{/qt-mingw/.*/libQt6BundledFreetype\.a$}, 'FreeType'],
    [qr{/qt-mingw/.*/libQt6BundledHarfbuzz\.a$}, 'HarfBuzz'],
    [qr{/qt-mingw/},                             'Qt'],
    [qr{/sqlite-mingw/lib/libsqlite3\.a$},       'SQLite'],
    [qr{/minizip-mingw/lib/libz\.a$},            'zlib'],
    [qr{/minizip-mingw/lib/libminizip\.a$},      'minizip'],
    [qr{/gcc/x86_64-w64-mingw32/},               'GCC'],
    [qr{/lib(pthread|winpthread)\.a$},           'Winpthreads'],
    [qr{/x86_64-w64-mingw32/(lib/)?},            'MinGW'],
);

sub slurp {
    my ($file) = @_;
    open my $handle, '<', $file or die "$file: $!\n";
    local $/;
    return scalar <$handle>;
}

sub version_of {
    my ($component) = @_;
    my (undef, undef, $file, $pattern) = @{$components{$component}};
    if ($component eq 'GCC') {
        my ($version) = `x86_64-w64-mingw32-gcc-posix -dumpfullversion` =~ /^([\d.]+)/;
        return $version;
    }
    return undef unless $file;
    my $text = slurp($file);
    if ($component eq 'MinGW') {
        my @parts = map { $text =~ /__MINGW64_VERSION_$_\s+(\d+)/ } qw(MAJOR MINOR);
        return join '.', @parts, $text =~ /__MINGW64_VERSION_BUGFIX\s+(\d+)/;
    }
    $text =~ $pattern or die "$file says no version\n";
    return $1;
}

# The libraries of which something was taken, by the first list of a map. Our own have no whole path there.
sub libraries_of {
    my ($map) = @_;
    my %found;
    for (split /\n/, slurp($map)) {
        last if /^Discarded input sections|^Memory Configuration/;
        $found{abs_path($1)} = 1 if m{^(/\S+\.a)\(};
    }
    return keys %found;
}

my ($version, $epoch, @programs) = @ARGV;
die "usage: sbom.pl VERSION EPOCH PROGRAM...\n" unless @programs;

my %users; # programs by component
for my $program (@programs) {
    for my $library (libraries_of("$program.map")) {
        my ($row) = grep { $library =~ $_->[0] } @libraries;
        die "$library is linked into $program, and nothing is said of it in sbom.pl\n" unless $row;
        $users{$row->[1]}{basename($program)} = 1;
    }
}

my @listed;
for my $component (sort keys %users) {
    my ($name, $licence) = @{$components{$component}};
    my $number = version_of($component);
    my $term = $licence =~ / WITH /
        ? {expression => $licence} : {license => {id => $licence}};
    push @listed, {
        type => 'library',
        'bom-ref' => lc $component,
        name => $name,
        (defined $number ? (version => $number) : ()),
        licenses => [$term],
        properties => [map { {name => 'kestrune:linkedInto', value => "$_.exe"} } sort keys %{$users{$component}}],
    };
}
print JSON::PP->new->pretty->canonical->encode({
    bomFormat => 'CycloneDX',
    specVersion => '1.5',
    version => 1,
    metadata => {
        timestamp => strftime('%Y-%m-%dT%H:%M:%SZ', gmtime $epoch),
        component => {
            type => 'application',
            'bom-ref' => 'kestrune',
            name => 'Kestrune',
            version => $version,
            licenses => [{license => {id => 'GPL-3.0-or-later'}}],
        },
    },
    components => \@listed,
    dependencies => [{ref => 'kestrune', dependsOn => [map { $_->{'bom-ref'} } @listed]}],
});
