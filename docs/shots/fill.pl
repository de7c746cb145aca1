# fill.pl FILE.play: tells the session script with the project's files in the places that name them.
# A line "<FILE" stands for the lines of a file, "<FILE" at the end of a site line for its text.
use strict;
use warnings;

# Scripts are in UTF-8; of the files the .dat ones are in the program's code page.
sub content {
  my ($name) = @_;
  my @reader = $name =~ /\.dat$|help\.html$/ ? qw(iconv -f CP1252 -t UTF-8) : 'cat';
  open(my $file, '-|', @reader, $name) or die "$reader[0]: $!\n";
  local $/;
  my $text = <$file>;
  close($file) or die "$name cannot be read\n";
  return $text;
}

while (my $line = <>) {
  if ($line =~ /^<(\S+)/) {
    $line = content($1);
    $line =~ s/\r//g;
  } elsif ($line =~ /^(site \S+) <(\S+)/) {
    my ($site, $text) = ($1, content($2));
    # The player's answers are of no style sheet's type.
    $text =~ s{<link rel="stylesheet" href="/([^"]+)">}{"<style>" . content("site/$1") . "</style>"}e;
    $text =~ s/([\\"])/\\$1/g;
    $text =~ s/\r/\\r/g;
    $text =~ s/\n/\\n/g;
    $line = "$site \"$text\"\n";
  }
  print $line;
}
