
frange 2 9
set -g JOB = '/p/ä'
out/show.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/$JOB/$ACTIVETAKE.$F4.exr"	)
}
take name T x