frange 1000.5 1120.4
set -g _HIP_SAVEVERSION = '19.5.303'
out/mantra1.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/$OS.$F4.exr"	)
}
