set -g _HIP_SAVEVERSION = '19.5.303'
out/mantra1.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/a.$F4.exr"	)
