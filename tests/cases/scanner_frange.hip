# frange 3 4
x frange 3 4
framerange 3 4
  FRANGE 1001 1100  
frange 5
frange
out/show.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/r/$OS.$F4.exr"	)
}
