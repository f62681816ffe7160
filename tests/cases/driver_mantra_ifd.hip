frange 1 48
set -g _HIP_SAVEVERSION = '19.5.303'
take name Main kids 0
out/mantra1.parm {
soho_outputmode	[ 0	locks=0 ]	(	"on"	)
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/$HIPNAME.$F4.exr"	)
soho_diskfile	[ 0	locks=0 ]	(	"$HIP/ifd/$HIPNAME.$F4.ifd"	)
trange	[ 0	locks=0 ]	(	"normal"	)
f	[ 0	locks=0 ]	(	10	20	2	)
}
