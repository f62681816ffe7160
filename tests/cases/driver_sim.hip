set -g _HIP_SAVEVERSION = '19.5.303'
set -g JOB = '/proj/demo'
out/cloth_sim_v2.parm {
sopoutput	[ 0	locks=0 ]	(	"$HIP/geo/$OS.$F4.bgeo.sc"	)
}
out/mantra_sim_ifd.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/sim.$F4.exr"	)
soho_outputmode	[ 0	locks=0 ]	(	"on"	)
soho_diskfile	[ 0	locks=0 ]	(	"$HIP/ifd/sim.$F4.ifd"	)
}
out/mantra_plain.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/plain.$F4.exr"	)
}
