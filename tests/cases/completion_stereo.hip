set -g _HIP_SAVEVERSION = '19.5.303'
obj/stereocam1.parm {
res	[ 0	locks=0 ]	(	1920	1080	)
}
obj/cam1.parm {
res	[ 0	locks=0 ]	(	1280	720	)
}
out/m_stereo.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m_stereo.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/stereocam1	)
soho_outputmode	[ 0	locks=0 ]	(	"on"	)
soho_diskfile	[ 0	locks=0 ]	(	"$HIP/ifd/m_stereo.$F4.ifd"	)
}
out/m_mono.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/mono.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam1	)
}
