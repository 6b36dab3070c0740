// A bone die, two units wide, at one step of its tumble.
#include "stage.inc"
// From the builder: Round, Pose[step], Lift[step], Print[face] and FaceName[face].
#include "tumble.inc"

#declare Step = clock;
#declare Unit = 21;   // pixels

#declare BoneFinish = finish {
  ambient 0 emission 0.05 diffuse 0.70 brilliance 0.85
  specular 0.35 roughness 0.012
  reflection { 0.015, 0.16 fresnel on } conserve_energy
}
#declare Bone = texture {
  pigment {
    bozo scale 0.5 warp { turbulence 0.4 }
    color_map { [0 rgb <1.00, 0.965, 0.885>] [1 rgb <0.985, 0.94, 0.84>] }
  }
  finish { BoneFinish }
}

#macro Symbol(File)
  texture {
    pigment {
      image_map { png File gamma srgb once interpolate 2 }
      translate <-0.5, -0.5, 0> scale <1.38, 1.38, 1> rotate x * 90
    }
    finish { ambient 0 emission 0.05 diffuse 0.75 specular 0.10 roughness 0.02 }
  }
#end

// A shallow round hollow in the upper face; the print lies at its bottom.
#declare HollowWidth = 0.84;
#declare HollowDepth = 0.085;
#declare HollowRadius = (HollowWidth * HollowWidth + HollowDepth * HollowDepth) / (2 * HollowDepth);

#macro Hollow(File)
  sphere {
    y * (1 + HollowRadius - HollowDepth), HollowRadius
    texture { Bone }
    Symbol(File)
  }
#end

#macro RoundCube(R)
  #local E = 1 - R;
  union {
    box { <-1, -E, -E>, <1, E, E> }
    box { <-E, -1, -E>, <E, 1, E> }
    box { <-E, -E, -1>, <E, E, 1> }
    #for (A, -1, 1, 2)
      #for (B, -1, 1, 2)
        cylinder { <-E, A*E, B*E>, <E, A*E, B*E>, R }
        cylinder { <A*E, -E, B*E>, <A*E, E, B*E>, R }
        cylinder { <A*E, B*E, -E>, <A*E, B*E, E>, R }
        sphere { <A*E, B*E, -E>, R }
        sphere { <A*E, B*E, E>, R }
      #end
    #end
  }
#end

difference {
  object { RoundCube(Round) texture { Bone } }
  #for (Face, 0, 5)
    object { Hollow(concat(FaceName[Face], ".png")) transform { Print[Face] } }
  #end
  transform { Pose[Step] }
  translate y * Lift[Step]
  rotate y * 25
  #if (Pass = 1) no_image #end
}

#if (Pass = 0)
  // Only seen mirrored in the bone: the room, a window on the right and the table.
  sphere {
    0, 900 inverse
    pigment { gradient y scale 1800 translate -y * 900
      color_map { [0.4 rgb <0.5, 0.45, 0.35>] [1 rgb <0.75, 0.78, 0.85>] } }
    finish { emission 1 ambient 0 diffuse 0 } no_image no_shadow
  }
  box { <-0.35, -0.25, 0>, <0.35, 0.25, 0.001>
    pigment { rgb 2.6 } finish { emission 1 ambient 0 diffuse 0 } no_image no_shadow
    rotate x * 35 translate z scale 400 rotate y * 60
  }
  plane { y, -0.01
    pigment { rgb <1, 1, 0.22> } finish { emission 0.6 ambient 0 diffuse 0 } no_image no_shadow }
#end

TableLight(4, 1)
TableCamera(<-0.42, 0.72, -0.1>, 54, 11, Width / Unit, Height / Unit)
