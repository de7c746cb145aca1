# embed.pl FOLDER PAGE...: puts the pictures of a folder into HTML pages, at every <img> whose
# data-picture names one.
use strict;
use warnings;

my $folder = shift;

sub picture {
  my ($name) = @_;
  my $file = "$folder/$name.png";
  open(my $picture, '<:raw', $file) or die "$file: $!\n";
  read($picture, my $head, 24) == 24 or die "$file is no picture\n";
  my ($width, $height) = unpack('x16 N2', $head);
  chomp(my $data = `base64 -w 0 '$file'`);
  return "width=\"$width\" height=\"$height\"", "src=\"data:image/png;base64,$data\"";
}

for my $page (@ARGV) {
  open(my $in, '<:raw', $page) or die "$page: $!\n";
  my $text = do { local $/; <$in> };
  $text =~ s{<img\s+data-picture="([\w-]+)"\s+[^>]*?(alt="[^"]*")[^>]*>}{
    my ($alt, $name) = ($2, $1);
    my ($size, $source) = picture($name);
    "<img data-picture=\"$name\" $size\n$alt\n$source>"
  }ge;
  open(my $out, '>:raw', $page) or die "$page: $!\n";
  print $out $text;
  close($out) or die "$page: $!\n";
}
