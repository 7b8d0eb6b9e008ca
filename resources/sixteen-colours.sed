# What the colours of the drawings are on a screen that has but sixteen: each is one that is there, so that nothing
# is mixed of dots. A drawing uses no other colour; the makers of icons see to that.
s/#2f4156\b/#000000/g
s/#5b7c99\b/#808080/g
s/#9fb4c6\b/#c0c0c0/g
s/#dce6ee\b/#ffffff/g
s/#fff\b/#ffffff/g
s/#3f88c5\b/#0000ff/g
s/#69a6d8\b/#00ffff/g
s/#2a9d8f\b/#008080/g
s/#238276\b/#008080/g
s/#5fa55a\b/#008000/g
s/#e9a23b\b/#ffff00/g
s/#f0b860\b/#ffff00/g
s/#f3c988\b/#ffff00/g
s/#c98423\b/#808000/g
s/#d1605e\b/#ff0000/g
s/#dd7f7c\b/#ff0000/g
s/#6cc0b5\b/#00ffff/g
s/#9cc4e6\b/#ffffff/g
