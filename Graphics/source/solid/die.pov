// The die on the table, at one step of its tumble.
#include "stage.inc"
// With it come the builder's Pose[step] and Lift[step].
#include "bone.inc"

#declare Step = clock;
#declare Unit = 21;   // pixels

object {
  Die
  transform { Pose[Step] }
  translate y * Lift[Step]
  // So far that the third face shows more than its edge.
  rotate y * 32
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
