// The leather cup. One unit is one pixel of the table, at every pose.
#include "stage.inc"
// Under the lamps that leather asks for, bone would lose its shades.
#declare BoneDiffuse = 0.48;
#include "bone.inc"

// The builder sets the pose: Lean to the right in degrees, Turn of the leaning
// cup towards the player, and its middle Across and Down in the picture;
// Full if a die is to be seen leaving it.

#declare Pitch = 36;
#declare Tall = 78;
#declare Foot = 24;
#declare Mouth = 29;
#declare Thick = 3.6;
#declare BandLow = 27;
#declare BandHigh = 49;

#macro RadiusAt(Y) (Foot + (Mouth - Foot) * Y / Tall) #end

#declare LeatherFinish = finish { ambient 0 emission 0.03 diffuse 0.85 specular 0.28 roughness 0.045 }

#declare Grime = rgb <0.05, 0.015, 0>;
#declare Grain = normal { crackle 0.95 scale 3 warp { turbulence 0.3 } }

#declare Leather = texture {
  pigment {
    wrinkles scale 9 warp { turbulence 0.5 octaves 4 }
    color_map {
      [0.0 rgb <0.20, 0.070, 0.022>]
      [0.5 rgb <0.34, 0.130, 0.042>]
      [1.0 rgb <0.47, 0.205, 0.075>]
    }
  }
  normal { Grain }
  finish { LeatherFinish }
}
// Grime settles where the wall meets the rim, the band and the foot.
texture {
  pigment {
    gradient y scale Tall
    color_map {
      [0 Grime transmit 0.25]
      [0.16 Grime transmit 1]
      [(BandLow - 5) / Tall Grime transmit 1]
      [(BandLow - 1) / Tall Grime transmit 0.35]
      [(BandHigh + 1) / Tall Grime transmit 0.35]
      [(BandHigh + 5) / Tall Grime transmit 1]
      [1 - 9 / Tall Grime transmit 1]
      [1 - 3 / Tall Grime transmit 0.3]
    }
  }
  normal { Grain }
  finish { LeatherFinish }
}

#declare EdgeLeather = texture {
  pigment { bozo scale 4 color_map { [0 rgb <0.25, 0.09, 0.03>] [1 rgb <0.36, 0.14, 0.05>] } }
  normal { bumps 0.25 scale 1.5 }
  finish { ambient 0 emission 0.03 diffuse 0.85 specular 0.45 roughness 0.03 }
}

#declare PaleLeather = texture {
  pigment {
    wrinkles scale 7 warp { turbulence 0.5 }
    color_map { [0 rgb <0.80, 0.63, 0.38>] [1 rgb <0.93, 0.80, 0.56>] }
  }
  normal { crackle 0.3 scale 2.6 warp { turbulence 0.3 } }
  finish { LeatherFinish }
}

#declare Lining = texture {
  pigment {
    gradient y scale Tall
    color_map {
      [0.45 rgb <0.002, 0.001, 0.001>]
      [0.85 rgb <0.014, 0.006, 0.003>]
      [1.00 rgb <0.07, 0.028, 0.012>]
    }
  }
  normal { bumps 0.3 scale 3 }
  finish { ambient 0 diffuse 0.8 }
}

#macro Thread(Colour)
  pigment { Colour }
  finish { ambient 0 emission 0.05 diffuse 0.85 specular 0.2 roughness 0.05 }
#end
#declare Flax = rgb <0.95, 0.83, 0.58>;
#declare Pitched = rgb <0.26, 0.10, 0.035>;

#macro Stitch(From, To)
  cylinder { From, To, 0.62 }
  sphere { From, 0.62 }
  sphere { To, 0.62 }
#end

// A ring of short stitches that stand a little out of the leather.
#macro Stitches(Y, Out, Count, Share, Colour)
  #local Reach = RadiusAt(Y) + Out;
  #local Half = Share * 180 / Count;
  union {
    #for (I, 0, Count - 1)
      #local From = vrotate(<0, Y, -Reach>, y * (I * 360 / Count - Half));
      #local To = vrotate(<0, Y, -Reach>, y * (I * 360 / Count + Half));
      Stitch(From, To)
    #end
    texture { Thread(Colour) }
  }
#end

// The wall is one piece of leather, laced together where its ends meet.
#macro Seam(Low, High)
  union {
    cylinder {
      <0, Low, -RadiusAt(Low)>, <0, High, -RadiusAt(High)>, 0.55
      pigment { rgb <0.06, 0.02, 0.008> }
    }
    union {
      #for (Y, Low + 2, High - 2, 4)
        Stitch(<-2, Y - 1, -RadiusAt(Y) + 0.1>, <2, Y + 1, -RadiusAt(Y) + 0.1>)
      #end
      texture { Thread(Flax) }
    }
    rotate -y * 24
  }
#end

#declare Body = difference {
  union {
    cone { y * 3, RadiusAt(3), y * (Tall - 1), RadiusAt(Tall - 1) }
    cylinder { y * 0, y * 3, Foot - 2.5 }
    texture { Leather }
  }
  cone {
    y * 5, RadiusAt(5) - Thick, y * (Tall + 1), RadiusAt(Tall + 1) - Thick
    texture { Lining }
  }
}

#declare Band = union {
  cone { y * BandLow, RadiusAt(BandLow) + 0.9, y * BandHigh, RadiusAt(BandHigh) + 0.9 }
  torus { RadiusAt(BandLow), 0.9 translate y * BandLow }
  torus { RadiusAt(BandHigh), 0.9 translate y * BandHigh }
}

#declare Cup = union {
  object { Body }
  difference {
    object { Band }
    cone { -y, RadiusAt(-1) - 1, y * (Tall + 1), RadiusAt(Tall + 1) - 1 }
    texture { PaleLeather }
  }
  // The sole's welt and the rolled rim.
  torus { Foot - 1.2, 2.3 translate y * 2.3 texture { EdgeLeather } }
  torus { RadiusAt(Tall) - Thick / 2, Thick / 2 + 0.7 translate y * (Tall - 0.6) texture { EdgeLeather } }
  Stitches(BandLow + 2.8, 0.7, 34, 0.56, Pitched)
  Stitches(BandHigh - 2.8, 0.7, 34, 0.56, Pitched)
  Stitches(Tall - 6, -0.2, 40, 0.56, Flax)
  Seam(5, BandLow - 1)
  Seam(BandHigh + 1, Tall - 8)
}

#declare Upwards = vrotate(y, x * Pitch);

#declare FullCup = union {
  object { Cup }
  #if (Full)
    // Small enough to have come past its fellows, and lying on what is then the lower wall.
    object { Die scale 14 rotate <40, 20, -20> translate <8, Tall - 1, -3> }
  #end
}

object {
  FullCup
  // A low cup's shadow for the tall one: the picture has no room for the whole of it.
  #if (Pass = 1) no_image scale <1, 0.5, 1> #end
  translate -y * Tall / 2
  rotate -z * Lean
  rotate y * Turn
  translate (Across - Width / 2) * x + (Height / 2 - Down) * Upwards
}

#declare Floor = ((Height / 2 - Down) * Upwards).y - Tall / 2;

// A lower lamp on the right brings out the round of the wall and its grain.
#if (Pass = 0)
  light_source { vnormalize(<1, 0.42, -0.60>) * 3000, rgb <1.16, 1.05, 0.90> shadowless }
  light_source { vnormalize(<-1, 0.25, -0.05>) * 3000, rgb <0.05, 0.05, 0.06> shadowless }
#end

TableLight(100, 0.12)
TableCamera(<0, 0, 0>, Pitch, 900, Width, Height)
